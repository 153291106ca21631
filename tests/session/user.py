"""What a user does with Dayvane's windows, with mouse, keyboard and a screen reader, and what they see there."""

import re

from dayvane_program import WINDOW_TITLE
from screen_reader import ABSENT, cells
from waiting import wait_until

SOON_SECONDS = 15
CALENDAR_DAYS = "Days of the month"
DAYS = "Days"
DOCUMENTS = "Documents of the day"
FAVORITES = "Favorites"
RIGHT_BUTTON = 3
SPOKEN_DAY = re.compile(r"\w+, (\d{1,2}) \w+ \d+(, .*)?")  # the C locale's long date, in the calendar with a number


def shown(name):
    """What is on the screen where a day is spoken in words: "07". Any other name as it is."""
    spoken = SPOKEN_DAY.fullmatch(name)
    return f"{int(spoken[1]):02}" if spoken else name


class User:
    """Each deed waits until what it needs is on the screen. What comes of it has to be waited for."""

    def __init__(self, desktop, dayvane):
        self._desktop = desktop
        self._dayvane = dayvane
        self._header_part = 1

    @property
    def reader(self):
        return self._desktop.screen_reader(self._dayvane.process)

    # What is seen.

    def rows(self, widget):
        """The rows of texts of a list or a tree."""
        return self.reader.rows(widget)

    def names(self, widget):
        """The first column of the rows; none while the widget is not on the screen or is being filled anew."""
        try:
            return [shown(row[0]) for row in self.rows(widget)]
        except ABSENT:
            return []

    def selected(self, widget):
        return [shown(row[0]) for row in self.reader.selected(widget)]

    def status(self):
        """The text in the status bar."""
        return next(widget.name for widget in self.reader.widgets() if widget.role == "status bar")

    def titles(self):
        return [window["title"] for window in self.reader.windows()]

    def box(self, title=None):
        """The window that asks or tells something: its title, its texts and its buttons; None without one. With a
        title, the one that has it."""

        def fits(window):
            return title == window["title"] if title is not None else not window["title"].startswith("Dayvane - ")

        return next((window for window in self.reader.windows() if window["buttons"] and fits(window)), None)

    def can_press(self, button):
        return "enabled" in self.reader.find(button, "push button").states

    def menu(self, *path):
        """The names of a menu's items."""
        return list(self.reader.menu(*path))

    def checked(self, *path):
        """Those of them with a check mark."""
        return [name for name, item in self.reader.menu(*path).items() if "checked" in item.states]

    def calendar(self):
        """The days that the calendar shows, in their order."""
        return [part for part in self.reader.find(CALENDAR_DAYS).children if part.role == "list item"]

    def header(self, widget, column):
        """Where a column's header is: x, y, width and height."""
        return self._patiently(f"{widget}'s columns", lambda: self.reader.find(widget, "tree").children[column].place)

    # What is done.

    def click_header(self, widget, column):
        x, y, width, height = self.header(widget, column)
        # Never twice in one place: that would be a double click.
        self._header_part = 3 - self._header_part
        self.click((x, y, 2 * width * self._header_part // 3, height))

    def find_button(self, button):
        """Waits until a button is on the screen."""
        self._patiently(f"a button {button}", lambda: self.reader.find(button, "push button"))

    def press(self, button, window=None):
        """Presses a button, of the window with that title where several have it."""
        self._patiently(f"a button {button}", lambda: self.reader.find(button, "push button", window=window).act())

    def choose(self, *path):
        """Chooses from the menus of the menu bar."""
        self._patiently(f"an item {' > '.join(path)}", lambda: self.reader.menu(*path[:-1])[path[-1]].act())

    def popup(self):
        """The names of the items of the menu that has popped up."""
        return self._patiently("a popup menu", lambda: list(self.reader.popup()))

    def popup_place(self, name):
        """Where an item of the menu is that has popped up."""
        return self._patiently(f"a popup menu with {name}", lambda: self.reader.popup()[name].place)

    def choose_in_popup(self, *names):
        """Clicks an item of the menu that has popped up, and goes on in the submenu that this opens."""
        for name in names:
            self.click(self.popup_place(name))

    def write(self, entry, text):
        def written():
            self.reader.find(entry, "text", "spin box").text = text
            return True

        self._patiently(f"an entry {entry}", written)

    def click_row(self, widget, name, button=1, times=1):
        """Clicks the row with that name in its first column."""

        def place():
            return next(row[0].place for row in cells(self.reader.find(widget)) if shown(row[0].name) == name)

        self.click(self._patiently(f"{name} in {widget}", place), button, times)

    def click(self, place, button=1, times=1):
        """Clicks into the middle of a place on the screen."""
        x, y, width, height = place
        self._desktop.run(
            ["xdotool", "mousemove", x + width // 2, y + height // 2, "click", "--repeat", times, "--delay", 20, button]
        )

    def drag(self, start, end):
        """Moves the mouse from one point to another with its button down."""
        self._desktop.run(["xdotool", "mousemove", *start, "mousedown", 1, "mousemove", *end, "mouseup", 1])

    def pointer(self):
        """Where the mouse is."""
        place = dict(line.split("=") for line in self._desktop.run(["xdotool", "getmouselocation", "--shell"]).split())
        return int(place["X"]), int(place["Y"])

    def type(self, *keys, text=None):
        """Presses keys in the main window ("ctrl+o"), then types a text."""
        self._desktop.type_into(WINDOW_TITLE, *keys, text=text)

    @staticmethod
    def _patiently(what, deed):
        """Does what needs something on the screen as soon as that is there."""

        def done():
            try:
                return deed() or None
            except (*ABSENT, LookupError, StopIteration):
                return None

        return wait_until(done, SOON_SECONDS, what)
