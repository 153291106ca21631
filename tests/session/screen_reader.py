"""What a screen reader finds in the windows of one program."""

from accessible import Gone

LARGEST_CELL_COUNT = 10_000  # a table of documents is never walked further


class NotOnScreen(LookupError):
    """What was looked for is not on the screen."""


ABSENT = (NotOnScreen, Gone)  # not there, or no longer since a moment


def walk(start):
    """Every visible widget in another, in breadth; the cells of tables are not looked at."""
    waiting = start.children
    while waiting:
        here = waiting.pop(0)
        try:
            if not here.is_showing:
                continue
            yield here
            if "Table" not in here.interfaces:
                waiting.extend(here.children)
        except Gone:  # while it was looked at
            continue


def menu_items(menu):
    """The items of a menu that its user can see, by name: one that is hidden has no height."""
    return {item.name: item for item in menu.children if item.role == "menu item" and item.place[3] > 0}


def rows(widget):
    """The rows of a table's texts; the text of an entry; the name alone of anything else."""
    interfaces = widget.interfaces
    if "Table" in interfaces:
        return [[cell.name for cell in row] for row in cells(widget)]
    return [[widget.text if "EditableText" in interfaces else widget.name]]


def cells(table):
    height, width = table.size
    if height * width > LARGEST_CELL_COUNT:
        raise ValueError(f"{table.name} has {height} rows")
    return [[table.cell(row, column) for column in range(width)] for row in range(height)]


class ScreenReader:
    """Everything is looked for anew at each call. Without the program on the bus nothing is found."""

    def __init__(self, bus, process):
        self._bus = bus
        self._process = process

    def widgets(self, window=None):
        """Everything in all windows, or in the one with that title."""
        program = self._bus.program(self._process)
        if program is None:
            return iter(())
        if window is None:
            return walk(program)
        return (
            widget for child in program.children if child.name == window and child.is_showing for widget in walk(child)
        )

    def find(self, name, *roles, window=None):
        """The first widget of that name, and of one of the roles where there are some."""
        for widget in self.widgets(window):
            if widget.name == name and (not roles or widget.role in roles):
                return widget
        raise NotOnScreen(name)

    def rows(self, name):
        return rows(self.find(name))

    def selected(self, name):
        """Those rows that are selected."""
        return [[cell.name for cell in row] for row in cells(self.find(name)) if "selected" in row[0].states]

    def focus(self):
        """Role and text of the widget that has the keyboard."""
        for widget in self.widgets():
            if "focused" in widget.states:
                return {"role": widget.role, "text": widget.text if "Text" in widget.interfaces else ""}
        return {"role": "", "text": ""}

    def windows(self):
        """Title, texts and buttons of every window."""
        program = self._bus.program(self._process)
        return [self._window(window) for window in program.children if window.is_showing] if program else []

    def menu(self, *path):
        """The items by name of a menu, to which the path leads from the menu bar."""
        items = menu_items(next((widget for widget in self.widgets() if widget.role == "menu bar")))
        for name in path:
            items = menu_items(items[name].children[0])
        return items

    def popup(self):
        """The items by name of the menu that popped up last."""
        if self._bus.popup is None:
            raise NotOnScreen("a popup menu")
        return menu_items(self._bus.popup)

    @staticmethod
    def _window(window):
        inside = [(widget.role, widget.name) for widget in walk(window)]
        return {
            "title": window.name,
            "texts": [name for role, name in inside if role == "label" and name],
            "buttons": [name for role, name in inside if role == "push button" and name],
        }
