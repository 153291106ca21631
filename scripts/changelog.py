#!/usr/bin/env python3
"""What CHANGELOG.md tells about the versions.

    changelog.py date VERSION         the day on which the version was released: "2026-11-22"
    changelog.py notes VERSION        what is new in the version, as it stands there
    changelog.py debian MAINTAINER    all versions, as a Debian package has its changelog
"""

import datetime
import pathlib
import re
import sys

CHANGELOG = pathlib.Path(__file__).resolve().parent.parent / "CHANGELOG.md"
HEADING = re.compile(r"^## \[(?P<version>[\d.]+)\] - (?P<day>\d{4}-\d\d-\d\d)$")
DEBIAN = """dayvane ({version}-1) unstable; urgency=medium

  * Version {version}. What is new is told in changelog.gz.

 -- {maintainer}  {day}
"""


def releases(text):
    """The released versions from the newest on, as (version, day, notes)."""
    found = []
    for part in re.split(r"^(?=## )", text, flags=re.MULTILINE)[1:]:
        heading, _, notes = part.partition("\n")
        if match := HEADING.match(heading):
            found.append((match["version"], datetime.date.fromisoformat(match["day"]), notes.strip()))
    return found


def debian(found, maintainer):
    return "\n".join(
        DEBIAN.format(version=version, maintainer=maintainer, day=day.strftime("%a, %d %b %Y 00:00:00 +0000"))
        for version, day, _ in found
    )


def answer(question, about, text):
    found = releases(text)
    if question == "debian":
        return debian(found, about)
    for version, day, notes in found:
        if version == about:
            return f"{day}\n" if question == "date" else f"# Dayvane {version}, {day}\n\n{notes}\n"
    raise LookupError(f"CHANGELOG.md does not tell of version {about}")


def main():
    if len(sys.argv) != 3 or sys.argv[1] not in ("date", "notes", "debian"):
        sys.exit(__doc__)
    try:
        sys.stdout.write(answer(sys.argv[1], sys.argv[2], CHANGELOG.read_text(encoding="utf-8")))
    except (LookupError, ValueError) as error:
        sys.exit(f"changelog.py: {error}")


if __name__ == "__main__":
    main()
