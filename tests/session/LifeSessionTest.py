"""The program's life in a session: first run, suspended and hidden, and what comes back when it is started again."""

import unittest

from dayvane_program import WINDOW_TITLE
from session_case import SessionTest
from user import DAYS, DOCUMENTS, FAVORITES, SOON_SECONDS
from waiting import stays, wait_until
from week_case import FAVORITE_DOCUMENTS, WeekTest

TICKS_SECONDS = 3  # three of the timer's ticks
REST_SECONDS = 1  # windows that have just come change places sooner than that

WELCOME = """Welcome to Dayvane.

We suggest that you review the default settings
by selecting the View|Options menu choice.

Would you like to view the help file?"""


class TheFirstRun(SessionTest):
    ANSWER = "No"

    @classmethod
    def setUpClass(cls):
        cls.arrange()
        cls.dayvane.launch()
        cls.box = cls.wait_for_box()
        cls.windows_beside_the_box = cls.desktop.windows(WINDOW_TITLE)
        cls.user.press(cls.ANSWER)
        cls.desktop.window(WINDOW_TITLE)

    def test_welcomes_the_user(self):
        self.assertEqual(self.box, {"title": "Dayvane", "texts": [WELCOME], "buttons": ["Yes", "No"]})

    def test_shows_the_main_window_only_after_the_welcome(self):
        self.assertEqual(self.windows_beside_the_box, [])

    def test_shows_no_help_after_no(self):
        self.wait_for(["Dayvane - Daily"], self.user.titles)

    def test_is_only_once(self):
        self.dayvane.stop()
        self.dayvane.start()
        self.wait_for(["Dayvane - Daily"], self.user.titles)


class TheFirstRunOfACuriousUser(SessionTest):
    @classmethod
    def setUpClass(cls):
        cls.arrange()
        cls.dayvane.launch()
        cls.user.press("Yes")

    def test_shows_where_to_begin(self):
        self.wait_for(["Dayvane - Daily", "Getting started - Dayvane Help"], lambda: sorted(self.user.titles()))

    def test_keeps_the_help_in_front_of_the_main_window(self):
        self.desktop.window(WINDOW_TITLE)
        wait_until(self.has_come_to_rest_on_the_help, SOON_SECONDS, "the keyboard in the help")

    def has_come_to_rest_on_the_help(self):
        def active():
            return self.desktop.run(["xdotool", "getactivewindow", "getwindowname"], check=False).strip()

        try:
            stays(lambda: active() == "Getting started - Dayvane Help", REST_SECONDS, active)
        except AssertionError:
            return False
        return True


class TheSessionsEndDuringTheWelcome(SessionTest):
    @classmethod
    def setUpClass(cls):
        cls.arrange()
        cls.dayvane.launch()
        cls.wait_for_box()

    def test_ends_the_program_well(self):
        self.dayvane.stop()
        self.assertIn("Window", self.dayvane.settings_file.read_text(encoding="utf-8"))


class TheSessionsEndDuringThePurgeQuestion(SessionTest):
    @classmethod
    def setUpClass(cls):
        cls.arrange()
        cls.dayvane.write_settings()
        cls.old_day = cls.dayvane.daily / "2020/January/05"
        cls.old_day.mkdir(parents=True)
        (cls.old_day / "Letter.txt.lnk").touch()
        cls.dayvane.launch()
        cls.wait_for_box()

    def test_ends_the_program_well_and_removes_nothing(self):
        self.dayvane.stop()
        self.assertTrue((self.old_day / "Letter.txt.lnk").exists())


class TheSessionsEndWithoutAPlaceToSave(SessionTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.open_elsewhere("Letter.txt")
        wait_until(cls.dayvane.favorites_file.exists, SOON_SECONDS, "the favorites on the disk")
        cls.dayvane.favorites_file.unlink()
        (cls.dayvane.favorites_file / "in the way").mkdir(parents=True)

    def test_is_held_up_by_no_box(self):
        self.dayvane.stop()
        self.assertIn(
            "An error occurred saving the current settings.",
            (self.dayvane.folder / "ErrorLog.txt").read_text(encoding="utf-8"),
        )


class ASecondStart(SessionTest):
    def test_tells_that_the_program_runs_and_ends_with_the_session(self):
        second = self.desktop.start([self.dayvane.executable])
        texts = wait_until(lambda: self.texts_of(second), SOON_SECONDS, "a message of the second start")
        self.assertEqual(texts, ["Dayvane is already loaded."])
        second.terminate()
        second.wait(SOON_SECONDS)
        self.assertIsNone(self.dayvane.process.poll())

    def texts_of(self, process):
        return [text for window in self.desktop.screen_reader(process).windows() for text in window["texts"]]


class CaptureThatIsSuspended(SessionTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.wait_for(["Suspend", "Hide", "Exit"], lambda: cls.user.menu("Dayvane"))
        cls.user.choose("Dayvane", "Suspend")
        cls.wait_for(["Resume", "Hide", "Exit"], lambda: cls.user.menu("Dayvane"))
        cls.open_elsewhere("Letter.txt")
        stays(lambda: not cls.dayvane.filed(), TICKS_SECONDS, lambda: f"nothing filed but {cls.dayvane.filed()}")
        cls.user.choose("Dayvane", "Resume")
        cls.wait_for_filed("Letter.txt")

    def test_files_what_was_opened_when_it_is_resumed(self):
        self.assertTrue(self.shortcut("Letter.txt").exists())

    def test_can_be_suspended_again(self):
        self.wait_for(["Suspend", "Hide", "Exit"], lambda: self.user.menu("Dayvane"))

    def test_goes_on_at_every_tick_once_resumed(self):
        self.open_elsewhere("Offer.txt")
        self.wait_for_filed("Offer.txt")


class TheNextStart(WeekTest):
    """After the user has moved and sized the window, widened a column, sorted, changed the style and the view."""

    PLACE = (60, 80, 1010, 620)
    WIDER = 90  # pixels
    NAME, PATH = 0, 2

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.desktop.place_window(WINDOW_TITLE, cls.PLACE)
        cls.widen(DOCUMENTS, cls.PATH)
        cls.user.click_header(DOCUMENTS, cls.NAME)
        cls.wait_for(cls.rows_of(0), lambda: cls.user.names(DOCUMENTS))
        cls.user.choose("View", "Favorites")
        cls.wait_for(FAVORITE_DOCUMENTS, lambda: sorted(cls.user.names(FAVORITES)))
        cls.widen(FAVORITES, cls.NAME)
        cls.before = cls.look()
        cls.user.choose("View", "List")
        cls.wait_for(["Favorites", "List"], lambda: cls.user.checked("View"))
        cls.end()
        cls.dayvane.start()
        cls.wait_for(True, lambda: bool(cls.user.names(FAVORITES)))
        cls.checked = cls.user.checked("View")
        cls.user.choose("View", "Details")
        cls.after = cls.look()

    @classmethod
    def end(cls):
        cls.user.choose("Dayvane", "Exit")
        cls.dayvane.wait_for_end()

    @classmethod
    def widen(cls, widget, column):
        x, y, width, height = cls.user.header(widget, column)
        cls.user.drag((x + width - 2, y + height // 2), (x + width - 2 + cls.WIDER, y + height // 2))
        cls.wait_for(width + cls.WIDER, lambda: cls.user.header(widget, column)[2])

    @classmethod
    def look(cls):
        return {
            "place": cls.desktop.placed(cls.desktop.window(WINDOW_TITLE)),
            "favorites": cls.user.rows(FAVORITES),
            "widths": [cls.user.header(FAVORITES, column)[2] for column in range(5)],
        }

    def test_finds_the_window_where_it_was(self):
        self.assertEqual(self.after["place"], self.before["place"])

    def test_shows_the_view_and_the_style_that_were_shown(self):
        self.assertEqual(self.checked, ["Favorites", "List"])

    def test_finds_the_columns_as_wide_as_they_were(self):
        self.assertEqual(self.after["widths"], self.before["widths"])

    def test_finds_the_favorites_as_they_were(self):
        self.assertEqual(self.after["favorites"], self.before["favorites"])

    def test_finds_the_documents_of_the_day_sorted_as_they_were(self):
        self.user.choose("View", "Daily")
        self.wait_for(self.rows_of(0), lambda: self.user.names(DOCUMENTS))

    def test_chooses_the_latest_day(self):
        self.user.choose("View", "Daily")
        self.wait_for([self.day_name(0)], lambda: self.user.selected(DAYS))


class TheStartAfterTheSessionsEnd(TheNextStart):
    @classmethod
    def end(cls):
        cls.dayvane.stop()


if __name__ == "__main__":
    unittest.main(verbosity=2)
