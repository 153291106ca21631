"""A long stream of openings, new documents and known ones mixed, with the program's timer at its fastest."""

import os
import random
import threading
import time
import unittest

from session_case import SessionTest
from waiting import wait_until

SECONDS = float(os.environ.get("DAYVANE_STRESS_SECONDS", "20"))
BETWEEN_OPENINGS_SECONDS = 0.05
REOPENED_SHARE = 0.3
SOON_SECONDS = 30


class ALongStreamOfOpenings(SessionTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.opened = {}  # moment of the last opening, by document
        openings = cls.open_many(random.Random(20261121))  # always the same order of documents
        print(f"{openings} openings of {len(cls.opened)} documents")
        wait_until(lambda: not cls.lost(), SOON_SECONDS, lambda: f"{cls.lost()} filed as last opened")
        cls.dayvane.stop()

    @classmethod
    def open_many(cls, chance):
        end = time.monotonic() + SECONDS
        pause = threading.Event()
        openings = 0
        while time.monotonic() < end:
            known = list(cls.opened)
            again = known and chance.random() < REOPENED_SHARE
            document = chance.choice(known) if again else cls.document(f"Page {len(known):05}.txt")
            cls.opened[document] = time.time()
            cls.list.opened(document, cls.opened[document])
            cls.list.write()
            openings += 1
            pause.wait(BETWEEN_OPENINGS_SECONDS)
        return openings

    @classmethod
    def lost(cls):
        """Documents whose shortcut of their last opening is not in that day's folder."""
        return [document.name for document, moment in cls.opened.items() if not cls.is_filed(document, moment)]

    @classmethod
    def is_filed(cls, document, moment):
        try:
            written = (cls.dayvane.day_folder(moment) / f"{document.name}.lnk").stat().st_mtime
        except FileNotFoundError:
            return False
        return abs(written - moment) < 0.001  # the list has microseconds

    def test_loses_no_document_and_no_last_opening(self):
        self.assertEqual(self.lost(), [])

    def test_counts_every_document_once_a_day(self):
        days = {}
        for path in self.dayvane.filed():
            name = path.rsplit("/", 1)[1].removesuffix(".lnk")
            days[name] = days.get(name, 0) + 1
        expected = {document.name: days[document.name] for document in self.opened}
        self.assertEqual(self.dayvane.days_accessed(), expected)


if __name__ == "__main__":
    unittest.main(verbosity=2)
