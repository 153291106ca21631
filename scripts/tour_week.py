"""The week that the tours show: what a made-up user opens on which day, and what becomes of it."""

import datetime
import time

TWIPS = 15  # to a pixel
UNTOUCHED = 1440  # a column's width as long as nobody has dragged it
DAILY_COLUMNS = ["Name", "Type", "Path", "Modified"]
FAVORITES_COLUMNS = ["Name", "Type", "Path", "Days Accessed", "Last Accessed"]
THRESHOLD_DAYS = 3

SETTINGS = {
    "options": {"Favorites Threshold": THRESHOLD_DAYS},
    "Window": {
        "Visible": True,
        "Window State": 0,
        "Left": 20 * TWIPS,
        "Top": 20 * TWIPS,
        "Width": 1000 * TWIPS,
        "Height": 520 * TWIPS,
    },
    "Daily": {**{f"{column} Width": UNTOUCHED for column in DAILY_COLUMNS}, "Sort Column": 3, "Sort Order": 0},
    "Favorites": {**{f"{column} Width": UNTOUCHED for column in FAVORITES_COLUMNS}, "Sort Column": 4, "Sort Order": 1},
}

VIEWS = ["daily", "favorites"]

# The user's programs: the types that each opens.
PROGRAMS = {
    "writer": ["application/vnd.oasis.opendocument.text"],
    "calc": ["application/vnd.oasis.opendocument.spreadsheet"],
    "reader": ["application/pdf"],
    "photos": ["image/png"],
    "editor": ["text/plain"],
}

BUDGET = ("Documents/Budget 2027.ods", "calc")
MINUTES = ("Documents/Minutes of the board.odt", "writer")
NOTES = ("Documents/Notes.txt", "editor")
OFFER = ("Documents/Harbour/Offer to Kessler.odt", "writer")
PLAN = ("Documents/Harbour/Site plan.png", "photos")
SURVEY = ("Documents/Harbour/Soil survey.pdf", "reader")
TICKET = ("Downloads/Train ticket.pdf", "reader")
PHOTO = ("Pictures/Quay at low tide.png", "photos")

# What was opened on which day, counted back from today, in the order of the day's hours.
WEEK = {
    6: [(9, NOTES), (10, OFFER), (14, SURVEY)],
    5: [(9, NOTES), (11, BUDGET), (15, OFFER)],
    4: [(8, TICKET), (16, PHOTO)],
    3: [(9, NOTES), (10, PLAN), (13, OFFER), (17, MINUTES)],
    2: [(10, BUDGET), (11, SURVEY), (15, OFFER)],
    1: [(9, NOTES), (12, MINUTES), (14, PLAN), (16, BUDGET)],
    0: [(0, SURVEY), (0, OFFER), (0, NOTES), (0, MINUTES), (0, BUDGET)],
}


def moments(days_ago, openings):
    """The moments (seconds since 1970) of a day's openings: at their hours, and today's within the last minutes."""
    now = datetime.datetime.now()
    if days_ago == 0:
        return [(now - datetime.timedelta(minutes=len(openings) - i)).timestamp() for i in range(len(openings))]
    day = now - datetime.timedelta(days=days_ago)
    return [
        day.replace(hour=hour, minute=7 * i + 4, second=0, microsecond=0).timestamp()
        for i, (hour, _) in enumerate(openings)
    ]


def show_repository(dayvane):
    print("\nDaily, a folder for every day:")
    days = [path for path in dayvane.daily.glob("*/*/*") if path.is_dir()]
    for day in sorted(days, key=lambda path: time.strptime("/".join(path.parts[-3:]), "%Y/%B/%d")):
        print(f"    {'/'.join(day.parts[-3:])}")
        for shortcut in sorted(day.iterdir()):
            print(f"        {shortcut.name}")


def show_favorites(dayvane):
    print(f"\nFavorites, opened on {THRESHOLD_DAYS} days or more:")
    for name, days in sorted(dayvane.days_accessed().items(), key=lambda row: (-row[1], row[0])):
        if days >= THRESHOLD_DAYS:
            print(f"    {days} days  {name}")
