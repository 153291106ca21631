"""What the tests of Dayvane in a private desktop have in common."""

import os
import time
import unittest

from dayvane_program import Dayvane, install
from private_desktop import PrivateDesktop
from recent_list import RecentList
from screen_reader import ABSENT
from user import DAYS, SOON_SECONDS, User
from waiting import wait_until

HALF_A_ROW = 8  # pixels
DAY_SECONDS = 24 * 60 * 60


class SessionTest(unittest.TestCase):
    """A private desktop with Dayvane running in it, one for all tests of a class. Its timer ticks every second."""

    @classmethod
    def setUpClass(cls):
        cls.arrange()
        cls.dayvane.write_settings()
        cls.dayvane.start()

    @classmethod
    def arrange(cls):
        """The desktop and the installed program, which does not run yet and has no settings."""
        cls.desktop = cls.make_desktop()
        cls.addClassCleanup(cls.desktop.close)
        # Printed always, because ctest shows it only where a test failed.
        cls.addClassCleanup(lambda: print(f"--- the programs of the desktop said:\n{cls.desktop.said()}---"))
        cls.desktop.__enter__()
        cls.desktop.listen()
        stage = cls.desktop.folder / "stage"
        install(os.environ["DAYVANE_BUILD_FOLDER"], stage)
        cls.list = RecentList(cls.desktop.data)
        cls.dayvane = Dayvane(cls.desktop, stage)
        cls.user = User(cls.desktop, cls.dayvane)

    @classmethod
    def make_desktop(cls):
        return PrivateDesktop()

    @classmethod
    def document(cls, name):
        """A document of that name in the scratch user's folder of documents."""
        path = cls.desktop.home / "Documents" / name
        path.parent.mkdir(exist_ok=True)
        path.write_text(f"This is {name}.\n", encoding="utf-8")
        return path

    @classmethod
    def open_elsewhere(cls, *names, days_ago=0):
        """Puts documents into the desktop's list as opened in other programs, so many days ago."""
        moment = time.time() - days_ago * DAY_SECONDS
        for name in names:
            cls.list.opened(cls.document(name), moment, "application/pdf" if name.endswith(".pdf") else "text/plain")
        cls.list.write()

    @classmethod
    def shortcut(cls, name, days_ago=0):
        """Where a document that was opened so many days ago is filed."""
        return cls.dayvane.day_folder(time.time() - days_ago * DAY_SECONDS) / f"{name}.lnk"

    @classmethod
    def wait_for_filed(cls, *names, days_ago=0):
        wait_until(
            lambda: all(cls.shortcut(name, days_ago).exists() for name in names),
            SOON_SECONDS,
            lambda: f"{names} among {cls.dayvane.filed()}",
        )

    @classmethod
    def wait_for(cls, expected, look):
        """Waits until the look gives what is expected. What comes or goes just then is looked at again."""
        seen = [None]

        def fits():
            try:
                seen[0] = look()
            except ABSENT as absence:
                seen[0] = absence
            return seen[0] == expected

        wait_until(fits, SOON_SECONDS, lambda: f"{expected}, but {seen[0]!r}")

    @classmethod
    def wait_for_box(cls, title=None):
        return wait_until(lambda: cls.user.box(title), SOON_SECONDS, f"a box {title or 'over the window'}")

    @classmethod
    def choose_last_day(cls):
        """Opens every branch of the tree of days and goes to its end: a click on its root, then the keyboard."""
        cls.user.type()
        x, y, width, _ = cls.user.reader.find(DAYS).place
        cls.user.click((x, y, width, 2 * HALF_A_ROW))
        cls.user.type("asterisk", "End")
