"""What the program does when the user's session bus goes away under it: it goes on, and ends well when asked to."""

import unittest

from private_desktop import END_SECONDS
from session_case import SessionTest
from user import SOON_SECONDS
from waiting import wait_until

WINDOW = "^Dayvane - Daily$"


class ABusThatGoesAway(SessionTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.open_elsewhere("Before.txt")
        cls.wait_for_filed("Before.txt")
        cls.desktop.end_bus()

    def test_takes_neither_the_program_nor_its_record_along(self):
        self.open_elsewhere("After.txt")
        self.wait_for_filed("After.txt")
        self.assertIsNone(self.dayvane.process.poll())
        self.assertEqual(len(self.desktop.windows(WINDOW)), 1)

    def test_tells_nobody_of_an_error(self):
        self.assertFalse((self.dayvane.folder / "ErrorLog.txt").exists())

    @classmethod
    def tearDownClass(cls):
        cls.dayvane.stop()


class AHiddenWindowWithoutABus(SessionTest):
    """Its icon has gone with the bus, and only a second start could tell the user that the program runs."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.desktop.run(["wmctrl", "-c", "Dayvane - Daily"])
        wait_until(lambda: not cls.desktop.windows(WINDOW), SOON_SECONDS, "a hidden window")
        cls.desktop.end_bus()

    def test_goes_on_recording_and_ends_well(self):
        self.open_elsewhere("After.txt")
        self.wait_for_filed("After.txt")
        self.dayvane.process.terminate()
        self.assertEqual(self.dayvane.process.wait(END_SECONDS), 0)


if __name__ == "__main__":
    unittest.main(verbosity=2)
