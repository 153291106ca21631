"""What a screen reader says of the main window, by Orca's own log of its speech."""

import re
import shutil
import unittest

from session_case import SessionTest
from waiting import wait_until

SPOKEN_SECONDS = 30
SPEECH = re.compile(r"SPEECH OUTPUT: '(.*?)'\{?")


class TheCalendar(SessionTest):
    @classmethod
    def setUpClass(cls):
        if shutil.which("orca") is None:
            raise unittest.SkipTest("this machine has no orca")
        cls.arrange()
        cls.dayvane.write_settings()
        cls.log = cls.desktop.home / "speech.log"
        # Its log would be held back by the kilobyte, but for one that is a terminal.
        orca = "orca --replace --disable braille --debug-file /dev/tty"
        log = f"exec script --quiet --flush --command '{orca}' '{cls.log}' >/dev/null"
        cls.desktop.start(["sh", "-c", log], XDG_SESSION_TYPE="x11")
        cls.wait_for_speech("Screen reader on")
        cls.open_elsewhere("Letter.odt", "Notes.txt")
        cls.dayvane.start()
        cls.wait_for_filed("Letter.odt", "Notes.txt")
        cls.date = cls.shortcut("").parent.relative_to(cls.dayvane.daily).parts

    @classmethod
    def spoken(cls):
        return SPEECH.findall(cls.log.read_text(errors="replace")) if cls.log.exists() else []

    @classmethod
    def wait_for_speech(cls, words, start=0):
        wait_until(
            lambda: any(words in said for said in cls.spoken()[start:]),
            SPOKEN_SECONDS,
            lambda: f"{words!r} in {cls.spoken()[start:]}",
        )

    def test_is_spoken_day_by_day_with_the_number_of_documents(self):
        year, month, day = self.date
        today = f"{int(day)} {month} {year}, 2 documents"
        before = len(self.spoken())

        self.user.type("shift+Tab", "shift+Tab")  # from the list to the tree, and on to the calendar
        self.wait_for_speech(today, before)

        before = len(self.spoken())
        self.user.type("Up")
        self.wait_for_speech(", no documents", before)
        self.assertEqual(1, sum("documents" in said for said in self.spoken()[before:]), "the day alone, no week")

        before = len(self.spoken())
        self.user.type("Down")
        self.wait_for_speech(today, before)


if __name__ == "__main__":
    unittest.main()
