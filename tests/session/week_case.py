"""Dayvane with some days of documents filed, and the programs that open them."""

from session_case import SessionTest
from user import DAYS, DOCUMENTS

PROGRAMS = {"Editor": "text/plain", "Reader": "application/pdf"}

# Filed under which day, counted back from today: the documents.
WEEK = {
    0: ["Budget.txt", "Letter.txt", "Plan.pdf"],
    1: ["Notes.txt", "Offer.txt", "Plan.pdf"],
    2: ["Offer.txt", "Survey.pdf"],
}
FAVORITE_DOCUMENTS = ["Offer.txt", "Plan.pdf"]  # those of two days


class WeekTest(SessionTest):
    """The documents of the week above are filed. Two days make a favorite."""

    @classmethod
    def setUpClass(cls):
        cls.arrange()
        cls.install_programs()
        cls.dayvane.write_settings({"Favorites Threshold": 2})
        # A day at a time, because the list tells only when a document was opened last.
        for days_ago in sorted(WEEK, reverse=True):
            cls.open_elsewhere(*WEEK[days_ago], days_ago=days_ago)
            if cls.dayvane.process is None:
                cls.dayvane.start()
            cls.wait_for_filed(*WEEK[days_ago], days_ago=days_ago)
        cls.choose_day(0)
        cls.wait_for(cls.rows_of(0), lambda: sorted(cls.user.names(DOCUMENTS)))

    @classmethod
    def install_programs(cls):
        """Gives the user programs that only note the documents that they were started with."""
        applications = cls.desktop.data / "applications"
        applications.mkdir(parents=True)
        cls.started = cls.desktop.home / "started.txt"
        defaults = ["[Default Applications]"]
        for name, mime in PROGRAMS.items():
            program = cls.desktop.home / name.lower()
            program.write_text(f'#!/bin/sh\necho "{name}: $1" >>"{cls.started}"\n', encoding="utf-8")
            program.chmod(0o755)
            (applications / f"{name.lower()}.desktop").write_text(
                f"[Desktop Entry]\nType=Application\nName={name}\nExec={program} %f\nMimeType={mime};\n",
                encoding="utf-8",
            )
            defaults.append(f"{mime}={name.lower()}.desktop")
        (cls.desktop.config / "mimeapps.list").write_text("\n".join(defaults) + "\n", encoding="utf-8")

    @classmethod
    def rows_of(cls, days_ago):
        """The names in the list of a day: its documents and their programs."""
        programs = {"Reader" if name.endswith(".pdf") else "Editor" for name in WEEK[days_ago]}
        return sorted([*WEEK[days_ago], *programs])

    @classmethod
    def day_name(cls, days_ago):
        """A day's name in the tree: "07"."""
        return cls.shortcut("", days_ago).parent.name

    @classmethod
    def choose_day(cls, days_ago):
        """Clicks a day in the tree."""
        cls.user.click_row(DAYS, cls.day_name(days_ago))
        cls.wait_for([cls.day_name(days_ago)], lambda: cls.user.selected(DAYS))

    @classmethod
    def started_programs(cls):
        """The programs that were started, each with its document: "Editor: /home/ana/Letter.txt"."""
        return cls.started.read_text(encoding="utf-8").splitlines() if cls.started.exists() else []
