"""What the program writes into its folder."""

import csv
import time


class Record:
    """The data in a folder, a pathlib.Path."""

    def __init__(self, folder):
        self.folder = folder
        self.daily = folder / "Daily"
        self.favorites_file = folder / "Favorites.dat"

    def day_folder(self, moment):
        """Where what was opened at a moment (seconds since 1970) is filed: "Daily/2026/November/20"."""
        return self.daily / time.strftime("%Y/%B/%d", time.localtime(moment))

    def filed(self):
        """Every shortcut in the repository, relative to it: "2026/November/20/Report.odt.lnk"."""
        return sorted(str(path.relative_to(self.daily)) for path in self.daily.glob("*/*/*/*"))

    def favorites(self):
        """The data file's records as lists of eight texts: days accessed, last accessed, shortcut, name, folder, …"""
        if not self.favorites_file.exists():
            return []
        with open(self.favorites_file, encoding="utf-8", newline="") as file:
            return list(csv.reader(file))

    def days_accessed(self):
        """Days accessed by document name."""
        return {record[3]: int(record[0]) for record in self.favorites()}

    def errors(self):
        """The lines of its error log."""
        log = self.folder / "ErrorLog.txt"
        return log.read_text(encoding="utf-8").splitlines() if log.exists() else []
