"""A launcher of the desktop: it calls programs on the session bus by their names, as docks and menus do where the menu
entry says that they may, and lets the bus start those that do not run.
"""

from accessible import call, connect
from gi.repository import GLib
from private_desktop import PrivateDesktop

NAME = "example.dayvane.Dayvane"
PATH = "/example/dayvane/Dayvane"
APPLICATION = "org.freedesktop.Application"
NO_CIRCUMSTANCES = GLib.Variant("a{sv}", {})


def desktop_with_installation():
    """A desktop that finds the program, its menu entry and the service of the bus where the tests install them."""
    desktop = PrivateDesktop()
    stage = desktop.folder / "stage"
    desktop.environment["XDG_DATA_DIRS"] = f"{stage}/share:{desktop.environment['XDG_DATA_DIRS']}"
    desktop.environment["PATH"] = f"{stage}/bin:{desktop.environment['PATH']}"
    return desktop


class Launcher:
    """On the session bus of this address."""

    def __init__(self, session_address):
        self.bus = connect(session_address)

    def click(self, startup_id=None):
        """A click on the program's icon in a dock, which shows that something starts as long as it has an identifier
        that nobody has told to be started."""
        told = {} if startup_id is None else {"desktop-startup-id": GLib.Variant("s", startup_id)}
        call(self.bus, NAME, PATH, f"{APPLICATION}.Activate", GLib.Variant("a{sv}", told))

    def choose(self, command):
        """One of the commands in the icon's menu."""
        call(
            self.bus,
            NAME,
            PATH,
            f"{APPLICATION}.ActivateAction",
            GLib.Variant("s", command),
            GLib.Variant("av", []),
            NO_CIRCUMSTANCES,
        )

    def offered(self):
        """The commands that can be chosen now."""
        described = call(self.bus, NAME, PATH, "org.gtk.Actions.DescribeAll")
        return sorted(name for name, (enabled, _, _) in described.items() if enabled)

    def state(self, command):
        """Whether a switch among them is on."""
        _, _, states = call(self.bus, NAME, PATH, "org.gtk.Actions.Describe", GLib.Variant("s", command))
        return states[0]

    def is_running(self):
        """Whether the program has its name on the bus."""
        return call(
            self.bus,
            "org.freedesktop.DBus",
            "/org/freedesktop/DBus",
            "org.freedesktop.DBus.NameHasOwner",
            GLib.Variant("s", NAME),
        )
