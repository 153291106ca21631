"""The main window hidden and shown, by the icons that the trays of different desktops have, and without any tray."""

import unittest

from dayvane_program import WINDOW_TITLE
from gnome_shell import GnomeShell
from launcher import Launcher, desktop_with_installation
from private_desktop import need
from session_case import SessionTest
from tray_item import TrayItem
from user import RIGHT_BUTTON, SOON_SECONDS
from waiting import stays, wait_until

A_WHILE_SECONDS = 4  # longer than a panel is waited for
TINT2 = """panel_items = S
panel_size = 200 40
panel_position = bottom right horizontal
"""
LXQT_PANEL = """[General]
panels=panel1

[panel1]
plugins=statusnotifier

[statusnotifier]
type=statusnotifier
"""


class TrayTest(SessionTest):
    """A tray and the program, started in this order; the kind of tray is a mixin's."""

    @classmethod
    def setUpClass(cls):
        cls.arrange()
        cls.dayvane.write_settings()
        cls.start()
        cls.icon = wait_until(cls.find_icon, SOON_SECONDS, "an icon in the tray")

    @classmethod
    def start(cls):
        cls.start_tray()
        cls.dayvane.start()

    def setUp(self):
        if not self.is_shown():
            self.click_icon()
            self.wait_for(True, self.is_shown)

    @classmethod
    def is_shown(cls):
        return bool(cls.desktop.windows(WINDOW_TITLE))


class StandIn:
    """The small window in the place of an icon. It waits in the task bar."""

    @classmethod
    def open_stand_in(cls):
        def waits():
            lines = cls.desktop.run(["wmctrl", "-l"], check=False).splitlines()
            return any(line.split(maxsplit=3)[-1] == "Dayvane" for line in lines)

        wait_until(waits, SOON_SECONDS, "a small window in the task bar")
        cls.desktop.run(["wmctrl", "-F", "-a", "Dayvane"])
        cls.user.find_button("Show")


class AnyTrayIcon:
    """What the icon does in every kind of tray."""

    def test_hides_the_window_at_a_click(self):
        self.click_icon()
        self.wait_for(False, self.is_shown)

    def test_shows_the_window_at_the_next_click(self):
        self.click_icon()
        self.wait_for(False, self.is_shown)
        self.click_icon()
        self.wait_for(True, self.is_shown)

    def test_offers_to_hide_what_is_shown(self):
        self.assertEqual(self.menu(), ["Hide", "Suspend", "About Dayvane", "Exit"])

    def test_offers_to_show_what_is_hidden(self):
        self.click_icon()
        self.wait_for(False, self.is_shown)
        self.assertEqual(self.menu(), ["Show", "Suspend", "About Dayvane", "Exit"])

    def test_hides_and_shows_by_its_menu(self):
        self.choose("Hide")
        self.wait_for(False, self.is_shown)
        self.choose("Show")
        self.wait_for(True, self.is_shown)

    def test_suspends_and_resumes_by_its_menu(self):
        self.choose("Suspend")
        self.wait_for(["Resume", "Hide", "Exit"], lambda: self.user.menu("Dayvane"))
        self.choose("Resume")
        self.wait_for(["Suspend", "Hide", "Exit"], lambda: self.user.menu("Dayvane"))

    def test_tells_about_the_program_by_its_menu(self):
        self.choose("About Dayvane")
        self.assertEqual(self.wait_for_box()["title"], "About Dayvane")
        self.user.press("OK")
        self.wait_for(None, self.user.box)


class ATrayThatComesLater(StandIn):
    """The program was started without a tray, and its window hidden."""

    @classmethod
    def start(cls):
        cls.dayvane.start()
        cls.desktop.run(["wmctrl", "-i", "-c", cls.desktop.window(WINDOW_TITLE)])
        cls.open_stand_in()
        cls.start_tray()

    def test_has_the_icon_in_place_of_the_small_window(self):
        self.wait_for(None, self.user.box)

    def test_shows_and_hides_the_window_at_a_click(self):
        self.click_icon()
        self.wait_for(False, self.is_shown)
        self.click_icon()
        self.wait_for(True, self.is_shown)


class Embedding:
    """A tray that takes the icon's own window in."""

    @classmethod
    def start_tray(cls):
        need("tint2")
        settings = cls.desktop.folder / "tint2rc"
        settings.write_text(TINT2, encoding="utf-8")
        cls.desktop.start(["tint2", "-c", settings])
        cls.desktop.window("^tint2$")

    @classmethod
    def find_icon(cls):
        """The program's window that has no title."""
        titled = cls.desktop.windows(WINDOW_TITLE) + cls.desktop.windows("^Dayvane$")
        return set(cls.desktop.windows("^dayvane$", by="class")) - set(titled)

    @classmethod
    def click_icon(cls, button=1):
        (icon,) = cls.icon
        cls.user.click(cls.desktop.placed(icon), button)

    def menu(self):
        self.click_icon(RIGHT_BUTTON)
        items = self.user.popup()
        self.desktop.run(["xdotool", "key", "Escape"])
        return items

    def choose(self, name):
        self.click_icon(RIGHT_BUTTON)
        self.user.choose_in_popup(name)


class Panel:
    """A panel that asks the program for the icon and its menu."""

    @classmethod
    def start_tray(cls):
        need("lxqt-panel")
        settings = cls.desktop.config / "lxqt/panel.conf"
        settings.parent.mkdir()
        settings.write_text(LXQT_PANEL, encoding="utf-8")
        cls.desktop.start(["lxqt-panel"])

    @classmethod
    def find_icon(cls):
        item = TrayItem(cls.desktop.environment["DBUS_SESSION_BUS_ADDRESS"])
        return item if item.is_there() else None

    @classmethod
    def click_icon(cls):
        cls.icon.click()

    def menu(self):
        return self.icon.menu()

    def choose(self, name):
        self.icon.choose(name)


class AnEmbeddedIcon(Embedding, AnyTrayIcon, TrayTest):
    pass


class AnIconInAPanel(Panel, AnyTrayIcon, TrayTest):
    pass


class AnEmbeddingTrayThatComesLater(Embedding, ATrayThatComesLater, TrayTest):
    pass


class APanelThatComesLater(Panel, ATrayThatComesLater, TrayTest):
    pass


class ADesktopWithoutATray(StandIn, SessionTest):
    """There is another way back to a hidden window."""

    def hide(self):
        self.desktop.run(["wmctrl", "-i", "-c", self.desktop.window(WINDOW_TITLE)])
        self.wait_for([], lambda: self.desktop.windows(WINDOW_TITLE))

    def test_has_the_small_window_in_nobodys_way(self):
        self.hide()
        self.wait_for("Iconic", self.state_of_stand_in)
        self.open_stand_in()
        self.user.press("Show")
        self.wait_for(["Dayvane - Daily"], self.user.titles)

    def state_of_stand_in(self):
        told = self.desktop.run(["xprop", "-name", "Dayvane", "WM_STATE"], check=False)
        return next((state for state in ("Iconic", "Normal") if f"window state: {state}" in told), None)

    def test_hides_the_window_that_is_closed_and_goes_on_filing(self):
        self.hide()
        self.open_elsewhere("Letter.txt")
        self.wait_for_filed("Letter.txt")
        self.open_stand_in()
        self.user.press("Show")
        self.desktop.window(WINDOW_TITLE)

    def test_offers_what_the_tray_would(self):
        self.hide()
        self.open_stand_in()
        self.wait_for(["Show", "Suspend", "About Dayvane", "Exit"], lambda: self.wait_for_box()["buttons"])
        self.user.press("Show")
        self.wait_for(["Dayvane - Daily"], self.user.titles)

    def test_shows_the_window_that_its_own_menu_hid(self):
        self.user.choose("Dayvane", "Hide")
        self.open_stand_in()
        self.wait_for(["Show", "Suspend", "About Dayvane", "Exit"], lambda: self.wait_for_box()["buttons"])
        self.user.press("Show")
        self.wait_for(["Dayvane - Daily"], self.user.titles)

    def test_shows_the_window_where_it_was_after_it_was_minimised(self):
        window = self.desktop.window(WINDOW_TITLE)
        place = self.desktop.placed(window)
        self.desktop.run(["xdotool", "windowminimize", window])
        self.open_stand_in()
        self.user.press("Show")
        self.wait_for([window], lambda: self.desktop.windows(WINDOW_TITLE))
        self.wait_for(place, lambda: self.desktop.placed(window))


class GnomesDash(SessionTest):
    """Brings a hidden window back by its own icon for the program, so that nothing stands in for one."""

    @classmethod
    def make_desktop(cls):
        return desktop_with_installation()

    @classmethod
    def setUpClass(cls):
        cls.arrange()
        cls.dayvane.write_settings()
        cls.shell = GnomeShell(cls.desktop.environment["DBUS_SESSION_BUS_ADDRESS"])
        cls.launcher = Launcher(cls.desktop.environment["DBUS_SESSION_BUS_ADDRESS"])
        cls.dayvane.start()

    def hide(self):
        self.desktop.run(["wmctrl", "-c", "Dayvane - Daily"])
        self.wait_for([], lambda: self.desktop.windows(WINDOW_TITLE))

    def test_is_told_of_once_and_brings_the_window_back_each_time(self):
        for _ in range(2):
            self.hide()
            self.wait_for(["Dayvane goes on recording"], self.shell.notifications)
            self.assertEqual(self.desktop.windows("^Dayvane$"), [])
            self.launcher.click()
            self.wait_for(["Dayvane - Daily"], self.user.titles)
        self.dayvane.stop()
        self.dayvane.start()
        self.hide()
        stays(lambda: len(self.shell.notifications()) == 1, A_WHILE_SECONDS, "no second notification")
        self.assertNotIn("Dayvane\n", self.desktop.run(["wmctrl", "-l"]))
        self.launcher.click()
        self.wait_for(["Dayvane - Daily"], self.user.titles)


class GnomesDashThatGoes(StandIn, GnomesDash):
    def test_is_told_of_once_and_brings_the_window_back_each_time(self):
        """Leaves a small window in its place."""
        self.hide()
        self.wait_for(["Dayvane goes on recording"], self.shell.notifications)
        self.shell.leave()
        self.open_stand_in()


class TheExit(SessionTest):
    def test_by_the_menu_ends_the_program_well(self):
        self.user.choose("Dayvane", "Exit")
        self.dayvane.wait_for_end()


if __name__ == "__main__":
    unittest.main(verbosity=2)
