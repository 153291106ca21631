"""The program's icon as a panel has it that speaks the status notifier protocol: driven as such a panel does."""

import gi

gi.require_version("GLib", "2.0")
from accessible import call, connect  # noqa: E402
from gi.repository import GLib  # noqa: E402

WATCHER = "org.kde.StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
MENU = "com.canonical.dbusmenu"
ROOT = GLib.Variant("i", 0)
ALL_LEVELS = GLib.Variant("i", -1)
NO_PLACE = GLib.Variant("i", 0)


class TrayItem:
    """The only icon on the session bus of this address."""

    def __init__(self, session_address):
        self._bus = connect(session_address)

    def is_there(self):
        try:
            return bool(self._names())
        except GLib.Error:  # the panel has not come yet
            return False

    def click(self):
        self._call("/StatusNotifierItem", f"{ITEM}.Activate", NO_PLACE, NO_PLACE)

    def menu(self):
        """The names of the menu's items that are shown."""
        return list(self._items())

    def choose(self, name):
        self._call(
            self._menu_path(),
            f"{MENU}.Event",
            GLib.Variant("i", self._items()[name]),
            GLib.Variant("s", "clicked"),
            GLib.Variant("v", GLib.Variant("s", "")),
            GLib.Variant("u", 0),
        )

    def _items(self):
        """The menu's numbers by name; a panel asks whether a menu has changed before it shows it."""
        path = self._menu_path()
        self._call(path, f"{MENU}.AboutToShow", ROOT)
        _, (_, _, entries) = self._call(path, f"{MENU}.GetLayout", ROOT, ALL_LEVELS, GLib.Variant("as", []))
        return {
            shown["label"].replace("_", ""): number
            for number, shown, _ in entries
            if shown.get("visible", True) and shown.get("type") != "separator"
        }

    def _menu_path(self):
        return self._get(self._names()[0], "/StatusNotifierItem", ITEM, "Menu")

    def _names(self):
        """The owners of the icons; the watcher adds the icon's path to each."""
        items = self._get(WATCHER, "/StatusNotifierWatcher", WATCHER, "RegisteredStatusNotifierItems")
        return [item.partition("/")[0] for item in items]

    def _get(self, name, path, interface, value):
        return call(
            self._bus,
            name,
            path,
            "org.freedesktop.DBus.Properties.Get",
            GLib.Variant("s", interface),
            GLib.Variant("s", value),
        )

    def _call(self, path, method, *arguments):
        return call(self._bus, self._names()[0], path, method, *arguments)
