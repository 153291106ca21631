"""What a screen reader finds in a program's windows, printed as JSON.

Run in the desktop of the program, because the accessibility bus is the session's:
    screen_reader.py PID texts NAME...    rows of texts of the widgets of these names, null for one not on the screen
    screen_reader.py PID focus            role and text of the widget that has the keyboard
    screen_reader.py PID place NAME       x and y of the widget's corner on the screen, width and height
"""

import json
import sys

import pyatspi
from gi.repository import GLib

LARGEST_CELL_COUNT = 10_000  # a table of documents is never walked further


def application(process):
    for program in pyatspi.Registry.getDesktop(0):
        if program is not None and program.get_process_id() == process:
            return program
    return None


def offers(widget, interface):
    return interface in pyatspi.listInterfaces(widget)


def find(program, fits):
    """The first visible widget that fits, looked for in breadth; the cells of tables are not looked at."""
    waiting = [program] if program is not None else []
    while waiting:
        here = waiting.pop(0)
        try:
            if here.getState().contains(pyatspi.STATE_SHOWING) and fits(here):
                return here
            if not offers(here, "Table"):
                waiting.extend(child for child in here if child is not None)
        except GLib.Error:  # it went away while it was looked at
            continue
    return None


def rows(widget):
    """Rows of a table's texts; the name alone of anything else."""
    if not offers(widget, "Table"):
        return [[widget.name]]
    table = widget.queryTable()
    if table.nRows * table.nColumns > LARGEST_CELL_COUNT:
        raise ValueError(f"{widget.name} has {table.nRows} rows")
    return [[table.getAccessibleAt(row, column).name for column in range(table.nColumns)]
            for row in range(table.nRows)]


def named(program, name):
    return find(program, lambda widget: widget.name == name)


def texts(program, names):
    widgets = {name: named(program, name) for name in names}
    return {name: rows(widget) if widget is not None else None for name, widget in widgets.items()}


def place(program, name):
    area = named(program, name).queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    return [area.x, area.y, area.width, area.height]


def focus(program):
    widget = find(program, lambda widget: widget.getState().contains(pyatspi.STATE_FOCUSED))
    if widget is None:
        return {"role": "", "text": ""}
    return {"role": widget.getRoleName(), "text": widget.queryText().getText(0, -1) if offers(widget, "Text") else ""}


def main():
    process, command, *names = sys.argv[1:]
    program = application(int(process))
    answers = {"texts": lambda: texts(program, names), "focus": lambda: focus(program),
               "place": lambda: place(program, *names)}
    print(json.dumps(answers[command]()))


main()
