"""The installed program under a Wayland compositor, where a program neither knows nor chooses where its windows are."""

import configparser
import unittest

from private_desktop import need
from session_case import SessionTest
from user import DAYS
from waiting import wait_until

START_SECONDS = 30
TWIPS = 15  # to a pixel
PLACE = {"Left": 300, "Top": 450}
SIZE = {"Width": 800 * TWIPS, "Height": 500 * TWIPS}
MAXIMISED = 2


class OnWayland(SessionTest):
    @classmethod
    def setUpClass(cls):
        need("weston")
        cls.arrange()
        cls.start_compositor()

    @classmethod
    def start_compositor(cls):
        cls.desktop.start(
            [
                "weston",
                "--backend=headless-backend.so",
                "--use-pixman",
                "--width=1280",
                "--height=800",
                "--socket=dayvane-test",
                "--no-config",
            ]
        )
        socket = cls.desktop.folder / "runtime/dayvane-test"
        wait_until(socket.exists, START_SECONDS, "the compositor's socket")

    def run_once(self, **window):
        """Starts the program with stored values of the window, ends it as the session would, and returns the stored
        values."""
        self.dayvane.write_settings(Window={"Visible": True, "Window State": 0, **PLACE, **SIZE, **window})
        # Leaks are not looked for here: the Wayland client library and Qt's plug-in for it keep some memory to the end.
        process = self.desktop.start(
            [self.dayvane.executable],
            WAYLAND_DISPLAY="dayvane-test",
            QT_QPA_PLATFORM="wayland",
            ASAN_OPTIONS="detect_leaks=0",
        )
        self.wait_for([["Daily"]], lambda: self.desktop.screen_reader(process).rows(DAYS))
        process.terminate()
        self.assertEqual(process.wait(START_SECONDS), 0)
        stored = configparser.ConfigParser()
        stored.optionxform = str
        stored.read(self.desktop.config / "dayvane/dayvane.ini")
        return {name: text for name, text in stored["Software\\Korvath\\Dayvane\\Window"].items()}

    def test_the_size_comes_back_and_the_place_of_another_desktop_is_kept(self):
        stored = self.run_once()
        self.assertEqual({name: int(stored[name]) for name in PLACE}, PLACE)
        for name, twips in SIZE.items():
            self.assertAlmostEqual(int(stored[name]), twips, delta=TWIPS)

    def test_a_maximised_window_comes_back_maximised(self):
        stored = self.run_once(**{"Window State": MAXIMISED})
        self.assertEqual(int(stored["Window State"]), MAXIMISED)
        self.assertEqual({name: int(stored[name]) for name in SIZE}, SIZE)


if __name__ == "__main__":
    unittest.main(verbosity=2)
