"""What a program sees of GNOME Shell on the session bus: its name, and the notifications that it shows."""

from accessible import connect
from gi.repository import Gio, GLib

NOTIFICATIONS = """<node><interface name="org.freedesktop.Notifications"><method name="Notify">
<arg type="s"/><arg type="u"/><arg type="s"/><arg type="s"/><arg type="s"/><arg type="as"/><arg type="a{sv}"/>
<arg type="i"/><arg type="u" direction="out"/></method></interface></node>"""


class GnomeShell:
    """On the session bus of this address, until it leaves."""

    def __init__(self, session_address):
        self._titles = []
        self._bus = connect(session_address)
        interface = Gio.DBusNodeInfo.new_for_xml(NOTIFICATIONS).interfaces[0]
        self._bus.register_object("/org/freedesktop/Notifications", interface, self._called, None, None)
        for name in ("org.freedesktop.Notifications", "org.gnome.Shell"):
            self._ask_bus("RequestName", GLib.Variant("(su)", (name, 0)))

    def notifications(self):
        """The titles of those that were shown, in their order."""
        while GLib.MainContext.default().iteration(False):
            pass
        return list(self._titles)

    def leave(self):
        self._ask_bus("ReleaseName", GLib.Variant("(s)", ("org.gnome.Shell",)))

    def _called(self, _bus, _sender, _path, _interface, _method, arguments, call):
        self._titles.append(arguments.unpack()[3])
        call.return_value(GLib.Variant("(u)", (len(self._titles),)))

    def _ask_bus(self, question, arguments):
        name = "org.freedesktop.DBus"
        self._bus.call_sync(
            name, "/org/freedesktop/DBus", name, question, arguments, None, Gio.DBusCallFlags.NONE, -1, None
        )
