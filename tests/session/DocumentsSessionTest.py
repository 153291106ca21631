"""What the user does with documents in the main window: opens them, removes links, purges days, counts again."""

import unittest

from user import DAYS, DOCUMENTS, FAVORITES, RIGHT_BUTTON
from week_case import WeekTest

DOUBLE = 2  # clicks


class ADocumentOfTheDay(WeekTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.open_elsewhere("Kept.txt", "Lost.txt", "Moved.txt")
        cls.wait_for_filed("Kept.txt", "Lost.txt", "Moved.txt")

    def lose(self, name):
        """Deletes a document and opens it from the list all the same."""
        path = self.document(name)
        path.unlink()
        self.user.click_row(DOCUMENTS, name, times=DOUBLE)
        return path

    def answer(self, button):
        self.user.press(button)
        self.wait_for(None, self.user.box)

    def test_opens_in_its_program_at_a_double_click(self):
        self.user.click_row(DOCUMENTS, "Letter.txt", times=DOUBLE)
        self.wait_for([f"Editor: {self.document('Letter.txt')}"], self.started_with("Letter.txt"))

    def test_opens_in_its_program_by_its_context_menu(self):
        self.user.click_row(DOCUMENTS, "Plan.pdf", RIGHT_BUTTON)
        self.user.choose_in_popup("Open")
        self.wait_for([f"Reader: {self.document('Plan.pdf')}"], self.started_with("Plan.pdf"))

    def test_that_is_gone_is_asked_about(self):
        path = self.lose("Kept.txt")
        box = self.wait_for_box()
        self.answer("No")
        self.assertEqual(
            box,
            {
                "title": "Dayvane",
                "buttons": ["Yes", "No"],
                "texts": [f"The document {path}\nwas not found. Remove this link?"],
            },
        )

    def test_that_is_gone_stays_in_the_record_after_no(self):
        self.lose("Moved.txt")
        self.answer("No")
        self.wait_for(True, lambda: "Moved.txt" in self.user.names(DOCUMENTS))
        self.assertTrue(self.shortcut("Moved.txt").exists())

    def test_that_is_gone_is_removed_from_everywhere_after_yes(self):
        self.lose("Lost.txt")
        self.answer("Yes")
        self.wait_for(False, lambda: "Lost.txt" in self.user.names(DOCUMENTS))
        self.assertFalse(self.shortcut("Lost.txt").exists())
        self.assertFalse((self.dayvane.recent / "Lost.txt.lnk").exists())

    def started_with(self, name):
        return lambda: [line for line in self.started_programs() if line.endswith(name)]


class ADayThatIsPurged(WeekTest):
    """The day before yesterday, with one of the two days of the offer."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.folder = cls.shortcut("", days_ago=2).parent
        cls.wait_for(True, cls.folder.exists)
        cls.user.click_row(DAYS, cls.day_name(2), RIGHT_BUTTON)
        cls.pointer = cls.user.pointer()
        cls.popup = cls.user.popup_place("Purge")
        cls.user.choose_in_popup("Purge")
        cls.wait_for(False, cls.folder.exists)

    def test_has_its_menu_where_the_mouse_is(self):
        x, y, *_ = self.popup
        self.assertLess(max(abs(x - self.pointer[0]), abs(y - self.pointer[1])), 5)

    def test_is_gone_from_the_tree(self):
        self.wait_for(False, lambda: self.day_name(2) in self.user.names(DAYS))

    def test_counts_no_longer(self):
        self.user.choose("View", "Favorites")
        self.wait_for(["Plan.pdf"], lambda: self.user.names(FAVORITES))

    def test_leaves_the_documents_alone(self):
        self.assertTrue((self.desktop.home / "Documents/Survey.pdf").exists())


class TheFavoritesWhenTheyAreCountedAgain(WeekTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.user.choose("View", "Favorites")
        cls.wait_for("2 objects", cls.user.status)
        cls.shortcut("Offer.txt", days_ago=2).unlink()
        cls.user.choose("Tools", "Rebuild Favorites")

    def test_have_lost_what_is_no_longer_in_the_record(self):
        self.wait_for(["Plan.pdf"], lambda: self.user.names(FAVORITES))

    def test_are_counted_anew_in_the_status_bar(self):
        self.wait_for("1 objects", self.user.status)


if __name__ == "__main__":
    unittest.main(verbosity=2)
