"""The options as their user meets them: what they say to a wrong entry, what is stored, what changes at once."""

import unittest

from user import FAVORITES
from week_case import FAVORITE_DOCUMENTS, WEEK, WeekTest

OPTIONS = "Dayvane Options"
THRESHOLD = "Favorites Threshold (1 or more days accessed)"
AGE = "Purge Age (1 or more days)"
INTERVAL = "Timer Interval (1 to 60 seconds)"

REFUSALS = {
    THRESHOLD: "The Favorites Threshhold must be 1 or more.",
    AGE: "The Purge age must be 1 or more.",
    INTERVAL: "The Timer Interval must be between 1 and 60.",
}


class TheOptions(WeekTest):
    def setUp(self):
        self.stored = self.dayvane.settings("Options")
        self.open()
        self.addCleanup(self.close)

    def open(self):
        self.user.choose("View", "Options")
        self.desktop.window(f"^{OPTIONS}$")
        self.wait_for_box(OPTIONS)

    def close(self):
        if self.user.box(OPTIONS) is not None:
            self.end("Cancel")

    def end(self, button):
        self.user.press(button, OPTIONS)
        self.wait_for(None, lambda: self.user.box(OPTIONS))

    def entries(self):
        return {label: self.user.rows(label)[0][0] for label in REFUSALS}

    def assert_refused(self, message):
        box = self.wait_for_box("Dayvane")
        self.user.press("OK", "Dayvane")
        self.wait_for(None, lambda: self.user.box("Dayvane"))
        self.assertEqual(box, {"title": "Dayvane", "texts": [message], "buttons": ["OK"]})
        self.assertEqual(self.user.titles()[-1], OPTIONS)

    def test_show_what_is_stored(self):
        self.assertEqual(list(self.entries().values()), list(self.stored.values()))

    def test_refuse_nought(self):
        for label, message in REFUSALS.items():
            with self.subTest(label):
                before = self.entries()[label]
                self.user.write(label, "0")
                self.user.press("OK", OPTIONS)
                self.assert_refused(message)
                self.user.write(label, before)

    def test_refuse_more_than_a_minute_between_ticks(self):
        self.user.write(INTERVAL, "61")
        self.user.press("OK", OPTIONS)
        self.assert_refused(REFUSALS[INTERVAL])

    def test_refuse_letters(self):
        for label, message in REFUSALS.items():
            with self.subTest(label):
                before = self.entries()
                self.user.click(self.user.reader.find(label, "spin box").place)
                self.desktop.type_into(f"^{OPTIONS}$", text="x")
                self.assert_refused(message)
                self.assertEqual(self.entries(), before)

    def test_store_nothing_after_cancel(self):
        for label in REFUSALS:
            self.user.write(label, "17")
        self.end("Cancel")
        self.assertEqual(self.dayvane.settings("Options"), self.stored)
        self.open()
        self.assertEqual(list(self.entries().values()), list(self.stored.values()))

    def test_store_everything_after_ok(self):
        self.user.write(AGE, "5000")
        self.user.write(INTERVAL, "2")
        self.end("OK")
        self.wait_for(
            {**self.stored, "Purge Age": "5000", "Timer Interval": "2"}, lambda: self.dayvane.settings("Options")
        )

    def test_fill_the_favorites_anew_with_another_threshold(self):
        self.user.choose("View", "Favorites")
        self.set_threshold("1")
        self.wait_for(True, lambda: set(self.user.names(FAVORITES)) >= {name for day in WEEK.values() for name in day})
        self.wait_for(f"{len(self.user.names(FAVORITES))} objects", self.user.status)
        self.open()
        self.set_threshold("2")
        self.wait_for(FAVORITE_DOCUMENTS, lambda: sorted(self.user.names(FAVORITES)))
        self.wait_for("2 objects", self.user.status)

    def set_threshold(self, days):
        self.user.write(THRESHOLD, days)
        self.end("OK")

    def test_open_their_help(self):
        self.user.press("Help", OPTIONS)
        self.wait_for(True, lambda: any(title.endswith("Dayvane Help") for title in self.user.titles()))


if __name__ == "__main__":
    unittest.main(verbosity=2)
