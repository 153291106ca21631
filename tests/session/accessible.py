"""The accessibility bus of a desktop, and what is on it: programs, their windows and widgets.

Spoken to directly and one call at a time, each with its time limit: nothing is remembered of a widget that may change
meanwhile, and a program that ends or hangs while it is asked holds nobody up.
"""

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

ANSWER_MILLISECONDS = 5000
PREFIX = "org.a11y.atspi."
REGISTRY = PREFIX + "Registry"
ROOT = "/org/a11y/atspi/accessible/root"
SCREEN = GLib.Variant("u", 0)  # coordinates of the screen

# Numbers of AT-SPI's states.
STATES = {1: "active", 4: "checked", 8: "enabled", 12: "focused", 23: "selected", 25: "showing"}

Gone = GLib.Error  # what a call ends with when the widget or its program is not there any more


def connect(address):
    flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
    return Gio.DBusConnection.new_for_address_sync(address, flags, None, None)


def call(bus, name, path, method, *arguments):
    """Calls "interface.Method" with variants and returns its result, or all when there are several."""
    interface, _, member = method.rpartition(".")
    tuple_of_all = GLib.Variant.new_tuple(*arguments) if arguments else None
    answer = bus.call_sync(
        name, path, interface, member, tuple_of_all, None, Gio.DBusCallFlags.NONE, ANSWER_MILLISECONDS, None
    ).unpack()
    return answer[0] if len(answer) == 1 else answer


class Accessible:
    """One widget, window or program."""

    def __init__(self, bus, name, path):
        self._bus, self._name, self._path = bus, name, path

    def __eq__(self, other):
        return (self._name, self._path) == (other._name, other._path)

    @property
    def name(self):
        return self._call(
            "org.freedesktop.DBus.Properties.Get", GLib.Variant("s", PREFIX + "Accessible"), GLib.Variant("s", "Name")
        )

    @property
    def role(self):
        return self._call(PREFIX + "Accessible.GetRoleName")

    @property
    def interfaces(self):
        return [name.removeprefix(PREFIX) for name in self._call(PREFIX + "Accessible.GetInterfaces")]

    @property
    def states(self):
        low, high = self._call(PREFIX + "Accessible.GetState")
        return [name for number, name in STATES.items() if (low | high << 32) >> number & 1]

    @property
    def is_showing(self):
        return "showing" in self.states

    @property
    def children(self):
        return [Accessible(self._bus, *child) for child in self._call(PREFIX + "Accessible.GetChildren")]

    @property
    def place(self):
        """x and y of the corner on the screen, width and height."""
        return self._call(PREFIX + "Component.GetExtents", SCREEN)

    @property
    def text(self):
        return self._call(PREFIX + "Text.GetText", GLib.Variant("i", 0), GLib.Variant("i", -1))

    @text.setter
    def text(self, text):
        self._call(PREFIX + "EditableText.SetTextContents", GLib.Variant("s", text))

    @property
    def size(self):
        """Rows and columns of a table."""
        return tuple(
            self._call(
                "org.freedesktop.DBus.Properties.Get", GLib.Variant("s", PREFIX + "Table"), GLib.Variant("s", count)
            )
            for count in ("NRows", "NColumns")
        )

    def cell(self, row, column):
        return Accessible(
            self._bus, *self._call(PREFIX + "Table.GetAccessibleAt", GLib.Variant("i", row), GLib.Variant("i", column))
        )

    def act(self):
        """What a screen reader does with a widget: its first action."""
        return self._call(PREFIX + "Action.DoAction", GLib.Variant("i", 0))

    def _call(self, method, *arguments):
        return call(self._bus, self._name, self._path, method, *arguments)


class AccessibilityBus:
    """The bus of the desktop whose session bus has this address."""

    def __init__(self, session_address):
        self._bus = connect(call(connect(session_address), "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus.GetAddress"))
        self._popups = []
        self._spoken = []
        for state in ("showing", "focused"):
            self._register(f"object:state-changed:{state}")
        self._bus.signal_subscribe(
            None, PREFIX + "Event.Object", "StateChanged", None, None, Gio.DBusSignalFlags.NONE, self._remember
        )

    def program(self, process):
        """The program with this process id; None when it is not on the bus, or not yet."""
        for name, path in call(self._bus, REGISTRY, ROOT, PREFIX + "Accessible.GetChildren"):
            try:
                if self._process(name) == process:
                    return Accessible(self._bus, name, path)
            except Gone:
                continue
        return None

    @property
    def popup(self):
        """The menu that popped up last and is still there; such menus are no program's children."""
        self._take_events()
        while self._popups:
            try:
                if self._popups[-1].is_showing:
                    return self._popups[-1]
            except Gone:
                pass
            self._popups.pop()
        return None

    @property
    def spoken(self):
        """The names of what has got the keyboard so far."""
        self._take_events()
        return list(self._spoken)

    @staticmethod
    def _take_events():
        while GLib.MainContext.default().iteration(False):
            pass

    def _process(self, name):
        return call(
            self._bus,
            "org.freedesktop.DBus",
            "/org/freedesktop/DBus",
            "org.freedesktop.DBus.GetConnectionUnixProcessID",
            GLib.Variant("s", name),
        )

    def _register(self, event):
        call(self._bus, REGISTRY, "/org/a11y/atspi/registry", REGISTRY + ".RegisterEvent", GLib.Variant("s", event))

    def _remember(self, _, name, path, _interface, _signal, arguments):
        state, is_set, *_ = arguments.unpack()
        widget = Accessible(self._bus, name, path)
        try:
            if state == "showing" and is_set and widget.role == "popup menu":
                self._popups.append(widget)
            if state == "focused" and is_set:
                self._spoken.append(widget.name)
        except Gone:
            pass
