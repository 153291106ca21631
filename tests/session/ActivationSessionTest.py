"""One click in a launcher brings the window back, whatever hid it, and starts the program where it does not run."""

import subprocess
import unittest

from dayvane_program import WINDOW_TITLE
from gnome_shell import GnomeShell
from launcher import NAME, Launcher, desktop_with_installation
from private_desktop import need
from session_case import SessionTest
from user import SOON_SECONDS
from waiting import stays, wait_until

ALL_THE_SCREEN = "1280x1024+0+0"
A_WHILE_SECONDS = 2
SESSION = ["start-with-session", "start-with-session-off", "start-with-session-on"]


class LauncherTest(SessionTest):
    """A desktop that finds the installed menu entry and the service of the bus."""

    @classmethod
    def make_desktop(cls):
        return desktop_with_installation()

    @classmethod
    def arrange(cls):
        super().arrange()
        cls.launcher = Launcher(cls.desktop.environment["DBUS_SESSION_BUS_ADDRESS"])

    @classmethod
    def is_shown(cls):
        return bool(cls.desktop.windows(WINDOW_TITLE))

    @classmethod
    def in_front(cls):
        """The title of the window that has the keyboard."""
        return cls.desktop.run(["xdotool", "getactivewindow", "getwindowname"], check=False).strip()

    @classmethod
    def cover(cls):
        """Puts another program's window over all others and gives it the keyboard."""
        need("xev")
        other = cls.desktop.start(["xev", "-name", "Another program", "-geometry", ALL_THE_SCREEN])
        cls.addClassCleanup(other.kill)
        cls.desktop.run(["xdotool", "windowactivate", "--sync", cls.desktop.window("Another program")])
        return other


class OneClick(LauncherTest):
    def setUp(self):
        self.launcher.click()
        self.wait_for(True, self.is_shown)

    def test_brings_back_a_window_that_was_closed(self):
        self.desktop.run(["wmctrl", "-c", "Dayvane - Daily"])
        self.wait_for(False, self.is_shown)
        self.launcher.click()
        self.wait_for("Dayvane - Daily", self.in_front)

    def test_brings_back_a_window_that_was_minimised(self):
        self.desktop.run(["xdotool", "windowminimize", self.desktop.window(WINDOW_TITLE)])
        self.wait_for(False, self.is_shown)
        self.launcher.click()
        self.wait_for("Dayvane - Daily", self.in_front)

    def test_brings_a_window_to_the_front_that_others_cover(self):
        other = self.cover()
        self.assertEqual(self.in_front(), "Another program")
        self.launcher.click()
        self.wait_for("Dayvane - Daily", self.in_front)
        other.kill()

    def test_is_over_when_the_window_is_back(self):
        """The dock is told so, and shows no longer that something is starting."""
        messages = self.desktop.folder / "messages"
        with open(messages, "wb") as file:
            witness = subprocess.Popen(["xev", "-root"], stdout=file, env=self.desktop.environment)
        self.addCleanup(witness.wait)
        self.addCleanup(witness.kill)
        self.desktop.run(["wmctrl", "-c", "Dayvane - Daily"])
        self.wait_for(False, self.is_shown)

        def told():
            self.launcher.click("dock-4711_TIME0")  # again, until the witness listens
            return "_NET_STARTUP_INFO)" in messages.read_text(encoding="utf-8", errors="replace")

        wait_until(told, SOON_SECONDS, "the dock told")

    def test_starts_no_second_program_where_the_menu_entry_is_launched(self):
        before = self.desktop.processes()
        self.desktop.run(["wmctrl", "-c", "Dayvane - Daily"])
        self.wait_for(False, self.is_shown)
        self.desktop.run(["gapplication", "launch", NAME])
        self.wait_for(True, self.is_shown)
        self.assertEqual(self.desktop.processes(), before)


class TheIconsMenu(LauncherTest):
    def test_suspends_and_resumes_and_offers_what_the_tray_offers(self):
        self.wait_for(["exit", *SESSION, "suspend"], self.launcher.offered)
        self.launcher.choose("suspend")
        self.wait_for(["Resume", "Hide", "Exit"], lambda: self.user.menu("Dayvane"))
        self.wait_for(["exit", "resume", *SESSION], self.launcher.offered)
        self.launcher.choose("resume")
        self.wait_for(["Suspend", "Hide", "Exit"], lambda: self.user.menu("Dayvane"))

    def test_waits_while_a_box_is_open(self):
        self.user.choose("Help", "About Dayvane")
        self.wait_for_box()
        self.launcher.choose("suspend")
        stays(lambda: self.launcher.offered() == ["exit", *SESSION, "suspend"], A_WHILE_SECONDS, "not suspended")
        self.user.press("OK")
        self.wait_for(["exit", "resume", *SESSION], self.launcher.offered)
        self.launcher.choose("resume")
        self.wait_for(["exit", *SESSION, "suspend"], self.launcher.offered)

    def test_works_where_a_launcher_runs_the_commands_of_the_entry(self):
        self.desktop.run(["gapplication", "action", NAME, "suspend"])
        self.wait_for(["exit", "resume", *SESSION], self.launcher.offered)
        self.desktop.run(["gapplication", "action", NAME, "resume"])
        self.wait_for(["exit", *SESSION, "suspend"], self.launcher.offered)


class TheIconsExit(LauncherTest):
    def test_ends_the_program_well_and_leaves_the_bus_without_it(self):
        self.launcher.choose("exit")
        self.dayvane.wait_for_end()
        self.assertFalse(self.launcher.is_running())


class StartingWithTheSession(LauncherTest):
    """Said and unsaid by the commands of the icon's menu; the user sees what came of it."""

    @classmethod
    def setUpClass(cls):
        cls.arrange()
        cls.shell = GnomeShell(cls.desktop.environment["DBUS_SESSION_BUS_ADDRESS"])
        cls.folder = cls.desktop.config / "autostart"
        cls.entry = cls.folder / f"{NAME}.desktop"
        cls.folder.mkdir()
        cls.old_entry = cls.folder / "dayvane.desktop"
        cls.old_entry.write_text("[Desktop Entry]\nType=Application\nName=Dayvane\nExec=dayvane\n", encoding="utf-8")
        cls.dayvane.write_settings()
        cls.dayvane.start()
        cls.user.find_button("Daily View")

    def test_is_said_and_unsaid_and_the_entry_starts_this_program(self):
        # What was copied by hand under an old name is one entry now.
        self.wait_for([self.entry.name], lambda: [entry.name for entry in self.folder.iterdir()])
        self.assertEqual(self.switch(), True)

        self.launcher.choose("start-with-session-off")
        self.wait_for([], lambda: list(self.folder.iterdir()))
        self.wait_for(["Dayvane does not start with your session"], self.shell.notifications)
        self.assertEqual(self.switch(), False)

        self.launcher.choose("start-with-session")
        self.wait_for([self.entry], lambda: list(self.folder.iterdir()))
        self.wait_for(True, self.switch)
        self.assertIn(f'Exec="{self.dayvane.executable}"', self.entry.read_text(encoding="utf-8"))
        self.desktop.run(["desktop-file-validate", self.entry])

    def test_says_so_where_another_program_has_that_name(self):
        self.launcher.choose("start-with-session-off")
        self.wait_for([], lambda: list(self.folder.iterdir()))
        self.entry.write_text("[Desktop Entry]\nType=Application\nName=Other\nExec=other\n", encoding="utf-8")

        self.launcher.choose("start-with-session-on")

        self.assertIn("An error occurred setting options.", self.wait_for_box()["texts"])
        self.user.press("OK")
        self.wait_for(None, self.user.box)
        self.assertIn("Exec=other", self.entry.read_text(encoding="utf-8"))
        self.assertIn("example.dayvane.Dayvane.desktop", self.dayvane.errors()[-1])
        self.entry.unlink()

    def switch(self):
        return self.launcher.state("start-with-session")


class AClickWhileNothingRuns(LauncherTest):
    """The program was hidden when it ended, and would begin so."""

    @classmethod
    def setUpClass(cls):
        cls.arrange()
        cls.dayvane.write_settings(Window={"Visible": "False"})

    def test_starts_the_program_with_its_window(self):
        self.launcher.click()
        self.wait_for(True, self.is_shown)
        self.assertTrue(self.launcher.is_running())
        self.launcher.choose("exit")
        self.wait_for(False, self.launcher.is_running)


class ASecondProcess(LauncherTest):
    """Says that the program runs and ends well; the first is neither disturbed nor brought forward."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.icon = cls.icon_of(cls.desktop.window(WINDOW_TITLE))
        cls.desktop.run(["wmctrl", "-c", "Dayvane - Daily"])
        cls.wait_for(False, cls.is_shown)

    @classmethod
    def icon_of(cls, window):
        return cls.desktop.run(["xprop", "-id", window, "_NET_WM_ICON"])

    def test_ends_well_and_leaves_a_hidden_window_hidden(self):
        second = self.desktop.start([self.dayvane.executable])
        reader = self.desktop.screen_reader(second)
        wait_until(reader.windows, SOON_SECONDS, "a message of the second process")
        self.assertEqual(reader.windows()[0]["texts"], ["Dayvane is already loaded."])
        box = self.desktop.run(["xdotool", "search", "--onlyvisible", "--pid", second.pid]).split()[-1]
        self.assertEqual(self.icon_of(box), self.icon)
        reader.find("OK", "push button").act()
        self.assertEqual(second.wait(SOON_SECONDS), 0)
        stays(lambda: not self.is_shown(), A_WHILE_SECONDS, "a window that stays hidden")


if __name__ == "__main__":
    unittest.main(verbosity=2)
