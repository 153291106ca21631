"""The main window as its user works with it: days, views, list styles, sorting, menus."""

import unittest

from screen_reader import cells
from user import DAYS, DOCUMENTS, FAVORITES, RIGHT_BUTTON, SOON_SECONDS, shown
from waiting import wait_until
from week_case import FAVORITE_DOCUMENTS, WEEK, WeekTest

STYLES = {
    "Large Icons": "Large Icon View",
    "Small Icons": "Small Icon View",
    "List": "List View",
    "Details": "Detail View",
}  # the button by menu item
ICON_SIZE = 32


class TheWeeksDays(WeekTest):
    def setUp(self):
        self.choose_day(0)

    def calendar_cell(self, days_ago):
        """The cell of a day; the calendar shows today's month and the last days before it."""
        days = self.user.calendar()
        first = [shown(cell.name) for cell in days].index("01")
        return days[first + int(self.day_name(0)) - 1 - days_ago]

    def test_stand_in_the_tree_under_their_month_and_year(self):
        days = [self.shortcut("", days_ago).parent.relative_to(self.dayvane.daily).parts for days_ago in (2, 1, 0)]
        expected = ["Daily"]
        for year, month, day in days:
            expected += [name for name in (year, month) if name not in expected] + [day]
        self.wait_for(expected, lambda: self.user.names(DAYS))

    def test_list_their_documents_when_clicked_in_the_tree(self):
        self.user.click_row(DAYS, self.day_name(1))
        self.wait_for(self.rows_of(1), lambda: sorted(self.user.names(DOCUMENTS)))

    def test_list_their_documents_when_clicked_in_the_calendar(self):
        self.user.click(self.calendar_cell(1).place)
        self.wait_for(self.rows_of(1), lambda: sorted(self.user.names(DOCUMENTS)))

    def test_are_selected_in_the_tree_when_clicked_in_the_calendar(self):
        self.user.click(self.calendar_cell(1).place)
        self.wait_for([self.day_name(1)], lambda: self.user.selected(DAYS))

    def test_are_selected_in_the_calendar_when_clicked_in_the_tree(self):
        self.user.click_row(DAYS, self.day_name(1))
        self.wait_for(
            [self.day_name(1)],
            lambda: [shown(cell.name) for cell in self.user.calendar() if "selected" in cell.states],
        )

    def test_are_spoken_with_their_documents_at_every_move_in_the_calendar(self):
        self.user.click(self.calendar_cell(0).place)
        spoken = self.desktop.spoken()

        self.user.type("Left")

        date = self.shortcut("", 1).parent.relative_to(self.dayvane.daily)
        words = f"{int(date.parts[2])} {date.parts[1]} {date.parts[0]}, {len(WEEK[1])} document"
        self.wait_for(True, lambda: any(words in name for name in self.desktop.spoken()[len(spoken) :]))
        self.wait_for([self.day_name(1)], lambda: self.user.selected(DAYS))
        self.assertIn(words, self.desktop.spoken()[-1], "the keyboard did not go to the tree")

    def test_name_themselves_above_their_list(self):
        self.choose_day(1)
        date = self.shortcut("", 1).parent.relative_to(self.dayvane.daily)
        words = f"{int(date.parts[2])} {date.parts[1]} {date.parts[0]}"
        self.wait_for(
            True,
            lambda: any(
                widget.role == "label" and widget.name.endswith(words) for widget in self.user.reader.widgets()
            ),
        )

    def test_tell_the_number_of_their_documents_in_the_status_bar(self):
        self.user.click_row(DAYS, self.day_name(2))
        self.wait_for(f"{len(self.rows_of(2))} objects", self.user.status)


class TheMainWindow(WeekTest):
    def setUp(self):
        self.user.choose("View", "Daily")
        self.wait_for("Dayvane - Daily", lambda: self.user.titles()[0])

    def first_places(self):
        """Where the first two documents are."""
        table = self.user.reader.find(DOCUMENTS)
        return [row[0].place for row in cells(table)[:2]]

    def is_shown_as(self, style):
        (x, y, _, height), (next_x, next_y, *_) = self.first_places()
        if style == "Details":
            return self.user.reader.find(DOCUMENTS).role == "tree"
        if style == "List":
            return self.user.reader.find(DOCUMENTS).role == "list" and x == next_x and y < next_y
        return y == next_y and (height > 2 * ICON_SIZE) == (style == "Large Icons")

    def show_as(self, style):
        self.user.choose("View", style)
        self.wait_for(True, lambda: self.is_shown_as(style))

    def close_box(self):
        """Answers a box with OK and returns what it said."""
        box = self.wait_for_box()
        self.user.press("OK")
        self.wait_for(None, self.user.box)
        return box

    def test_shows_the_favorites_by_the_menu(self):
        self.user.choose("View", "Favorites")
        self.wait_for(FAVORITE_DOCUMENTS, lambda: sorted(self.user.names(FAVORITES)))

    def test_shows_the_favorites_by_the_toolbar(self):
        self.user.press("Favorites View")
        self.wait_for(FAVORITE_DOCUMENTS, lambda: sorted(self.user.names(FAVORITES)))

    def test_shows_the_days_again_by_the_toolbar(self):
        self.user.press("Favorites View")
        self.user.press("Daily View")
        self.wait_for(self.rows_of(0), lambda: sorted(self.user.names(DOCUMENTS)))

    def test_names_the_view_in_its_title(self):
        self.user.choose("View", "Favorites")
        self.wait_for(["Dayvane - Favorites"], self.user.titles)

    def test_checks_the_view_in_the_menu(self):
        self.user.press("Favorites View")
        self.wait_for(["Favorites"], lambda: [name for name in self.user.checked("View") if name not in STYLES])

    def test_greys_the_button_of_the_view(self):
        self.user.choose("View", "Favorites")
        self.wait_for((True, False), lambda: (self.user.can_press("Daily View"), self.user.can_press("Favorites View")))

    def test_tells_the_number_of_favorites_in_the_status_bar(self):
        self.user.choose("View", "Favorites")
        self.wait_for("2 objects", self.user.status)

    def test_tells_the_days_accessed_of_a_favorite(self):
        self.user.choose("View", "Favorites")
        self.wait_for(
            {name: "2" for name in FAVORITE_DOCUMENTS},
            lambda: {row[0]: row[3].strip() for row in self.user.rows(FAVORITES)},
        )

    def test_shows_the_documents_in_four_styles_by_the_menu(self):
        for style in STYLES:
            with self.subTest(style):
                self.show_as(style)

    def test_shows_the_documents_in_four_styles_by_the_toolbar(self):
        for style, button in STYLES.items():
            with self.subTest(style):
                self.user.press(button)
                self.wait_for(True, lambda style=style: self.is_shown_as(style))

    def test_shows_the_documents_in_another_style_by_their_context_menu(self):
        self.show_as("Details")
        self.user.click_row(DOCUMENTS, "Letter.txt", RIGHT_BUTTON)
        self.user.choose_in_popup("View", "Large Icons")
        self.wait_for(True, lambda: self.is_shown_as("Large Icons"))

    def test_checks_the_style_and_greys_its_button(self):
        for style, button in STYLES.items():
            with self.subTest(style):
                self.user.choose("View", style)
                self.wait_for([style], lambda: [name for name in self.user.checked("View") if name in STYLES])
                self.assertEqual([button], [name for name in STYLES.values() if not self.user.can_press(name)])

    def test_can_show_a_folder_only_of_a_chosen_document(self):
        self.choose_day(1)
        self.choose_day(0)
        self.wait_for(False, lambda: self.user.can_press("Open Folder"))
        self.user.click_row(DOCUMENTS, "Letter.txt")
        self.wait_for(True, lambda: self.user.can_press("Open Folder"))

    def test_has_a_find_command_that_is_yet_to_come(self):
        self.user.choose("Tools", "Find...")
        box = self.close_box()
        self.assertEqual(box, {"title": "Dayvane", "texts": ["Display find dialog box here."], "buttons": ["OK"]})

    def test_tells_about_the_program(self):
        self.user.choose("Help", "About Dayvane")
        box = self.close_box()
        self.assertEqual((box["title"], box["buttons"]), ("About Dayvane", ["OK"]))
        self.assertRegex(box["texts"][0], r"^Dayvane\nVersion \d+\.\d+\.\d+\n")

    def test_opens_the_contents_of_the_help(self):
        self.user.choose("Help", "Dayvane Help Topics")
        self.wait_for("Dayvane Help", lambda: self.wait_for_box()["title"])
        self.desktop.type_into("^Dayvane Help$", "Escape")
        self.wait_for(None, self.user.box)


class SortingTheDocuments(WeekTest):
    NAME = 0

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.user.choose("View", "Details")
        first = cls.user.rows(DOCUMENTS)
        cls.types = [row[1] for row in first]
        cls.user.click_header(DOCUMENTS, cls.NAME)
        cls.by_name = cls.next_order([row[0] for row in first])
        cls.user.click_header(DOCUMENTS, cls.NAME)
        cls.by_name_again = cls.next_order(cls.by_name)

    @classmethod
    def next_order(cls, last):
        wait_until(lambda: cls.user.names(DOCUMENTS) != last, SOON_SECONDS, lambda: f"another order than {last}")
        return cls.user.names(DOCUMENTS)

    def test_goes_by_their_type_at_first(self):
        self.assertEqual(self.types, sorted(self.types, key=str.lower))

    def test_goes_by_the_column_that_is_clicked(self):
        self.assertEqual(self.by_name, self.rows_of(0))

    def test_turns_around_at_the_second_click(self):
        self.assertEqual(self.by_name_again, self.rows_of(0)[::-1])


if __name__ == "__main__":
    unittest.main(verbosity=2)
