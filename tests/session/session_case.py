"""What the tests of Dayvane in a private desktop have in common."""

import os
import unittest

from dayvane_program import WINDOW_TITLE, Dayvane, install
from private_desktop import PrivateDesktop
from recent_list import RecentList

SOON_SECONDS = 15
HALF_A_ROW = 8  # pixels


class SessionTest(unittest.TestCase):
    """A private desktop with Dayvane running in it, one for all tests of a class. Its timer ticks every second."""

    @classmethod
    def setUpClass(cls):
        cls.desktop = PrivateDesktop()
        cls.addClassCleanup(cls.desktop.close)
        # Printed always, because ctest shows it only where a test failed.
        cls.addClassCleanup(lambda: print(f"--- the programs of the desktop said:\n{cls.desktop.said()}---"))
        cls.desktop.__enter__()
        stage = cls.desktop.folder / "stage"
        install(os.environ["DAYVANE_BUILD_FOLDER"], stage)
        cls.list = RecentList(cls.desktop.data)
        cls.dayvane = Dayvane(cls.desktop, stage)
        cls.dayvane.write_settings()
        cls.dayvane.start()

    @classmethod
    def document(cls, name):
        """A document of that name in the scratch user's folder of documents."""
        path = cls.desktop.home / "Documents" / name
        path.parent.mkdir(exist_ok=True)
        path.write_text(f"This is {name}.\n", encoding="utf-8")
        return path

    @classmethod
    def choose_last_day(cls):
        """Opens every branch of the tree of days and goes to its end: a click on its root, then the keyboard."""
        cls.desktop.type_into(WINDOW_TITLE)
        x, y, width, _ = cls.desktop.read_screen(cls.dayvane.process, "place", "Days")
        cls.desktop.run(["xdotool", "mousemove", x + width // 2, y + HALF_A_ROW, "click", 1])
        cls.desktop.type_into(WINDOW_TITLE, "asterisk", "End")

    @classmethod
    def shown_texts(cls, widget):
        """Every text of a widget of Dayvane's window; none while it is not on the screen."""
        rows = cls.desktop.read_screen(cls.dayvane.process, "texts", widget)[widget]
        return [text for row in rows or [] for text in row]
