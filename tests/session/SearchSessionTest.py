"""Documents of the record found in the searches of desktops, as GNOME Shell and KDE's KRunner search, and opened from
there. The descriptions of both are read from where the program installs them.
"""

import configparser
import unittest

from accessible import call, connect
from gi.repository import GLib
from launcher import desktop_with_installation
from session_case import SessionTest
from user import SOON_SECONDS
from waiting import wait_until

GNOME = "org.gnome.Shell.SearchProvider2"
KDE = "org.kde.krunner1"


class TheDesktopsSearch(SessionTest):
    @classmethod
    def make_desktop(cls):
        return desktop_with_installation()

    @classmethod
    def setUpClass(cls):
        cls.arrange()
        cls.opened = cls.desktop.folder / "opened"
        cls.install_reader()
        cls.dayvane.write_settings()
        cls.dayvane.start()
        cls.open_elsewhere("Letter to Ben.txt", days_ago=1)
        cls.open_elsewhere("Letter to Carla.txt")
        cls.wait_for_filed("Letter to Carla.txt")
        cls.wait_for_filed("Letter to Ben.txt", days_ago=1)
        cls.bus = connect(cls.desktop.environment["DBUS_SESSION_BUS_ADDRESS"])
        share = cls.desktop.folder / "stage/share"
        cls.gnome = cls.read(share / "gnome-shell/search-providers/example.dayvane.Dayvane.search-provider.ini")
        cls.kde = cls.read(share / "krunner/dbusplugins/example.dayvane.Dayvane.desktop")

    @classmethod
    def install_reader(cls):
        """A program for texts that notes what it opens."""
        applications = cls.desktop.data / "applications"
        applications.mkdir(parents=True)
        reader = cls.desktop.folder / "reader"
        reader.write_text(f'#!/bin/sh\necho "$1" >> {cls.opened}\n', encoding="utf-8")
        reader.chmod(0o755)
        entry = f"[Desktop Entry]\nType=Application\nName=Reader\nExec={reader} %f\nMimeType=text/plain;\n"
        (applications / "reader.desktop").write_text(entry, encoding="utf-8")
        (cls.desktop.config / "mimeapps.list").write_text(
            "[Default Applications]\ntext/plain=reader.desktop\n", encoding="utf-8"
        )

    @staticmethod
    def read(description):
        parser = configparser.ConfigParser(interpolation=None)
        parser.optionxform = str
        parser.read(description, encoding="utf-8")
        return next(dict(parser[section]) for section in parser.sections())

    def ask_gnome(self, method, *arguments):
        return call(self.bus, self.gnome["BusName"], self.gnome["ObjectPath"], f"{GNOME}.{method}", *arguments)

    def ask_kde(self, method, *arguments):
        name = self.kde["X-Plasma-DBusRunner-Service"].removesuffix("*")
        return call(self.bus, name, self.kde["X-Plasma-DBusRunner-Path"], f"{KDE}.{method}", *arguments)

    def wait_for_opened(self, name):
        wait_until(lambda: self.opened.exists() and name in self.opened.read_text(), SOON_SECONDS, f"{name} opened")

    def test_of_gnome_finds_the_newest_first_and_opens_what_is_chosen(self):
        found = self.ask_gnome("GetInitialResultSet", GLib.Variant("as", ["letter"]))
        shown = self.ask_gnome("GetResultMetas", GLib.Variant("as", found))
        self.assertEqual([one["name"] for one in shown], ["Letter to Carla.txt", "Letter to Ben.txt"])
        self.assertEqual(found, self.ask_gnome("GetInitialResultSet", GLib.Variant("as", ["LETTER", "to"])))
        self.ask_gnome("ActivateResult", GLib.Variant("s", found[1]), GLib.Variant("as", []), GLib.Variant("u", 0))
        self.wait_for_opened("Letter to Ben.txt")

    def test_of_kde_finds_the_same_and_opens_what_is_chosen(self):
        found = self.ask_kde("Match", GLib.Variant("s", "letter carla"))
        self.assertEqual([text for _, text, *_ in found], ["Letter to Carla.txt"])
        self.ask_kde("Run", GLib.Variant("s", found[0][0]), GLib.Variant("s", ""))
        self.wait_for_opened("Letter to Carla.txt")

    def test_says_that_a_document_is_gone_and_finds_it_no_more_once_its_link_is_removed(self):
        self.open_elsewhere("Gone.txt")
        self.wait_for_filed("Gone.txt")
        (self.desktop.home / "Documents/Gone.txt").unlink()
        self.wait_for(1, lambda: len(self.ask_kde("Match", GLib.Variant("s", "gone"))))
        ((identifier, *_),) = self.ask_kde("Match", GLib.Variant("s", "gone"))
        self.ask_kde("Run", GLib.Variant("s", identifier), GLib.Variant("s", ""))
        self.wait_for_box()
        self.user.press("Yes")
        self.wait_for([], lambda: self.ask_kde("Match", GLib.Variant("s", "gone")))


if __name__ == "__main__":
    unittest.main(verbosity=2)
