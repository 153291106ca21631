"""The desktop's list of recent documents (recently-used.xbel), written as GTK programs write it."""

import datetime
import os
import pathlib
import tempfile
import urllib.parse
from xml.sax.saxutils import quoteattr

LARGEST = 1000  # GTK drops entries from the head of a longer list

HEAD = """<?xml version="1.0" encoding="UTF-8"?>
<xbel version="1.0"
      xmlns:bookmark="http://www.freedesktop.org/standards/desktop-bookmarks"
      xmlns:mime="http://www.freedesktop.org/standards/shared-mime-info"
>"""

ENTRY = """
  <bookmark href={href} added="{added}" modified="{modified}" visited="{added}">
    <info>
      <metadata owner="http://freedesktop.org">
        <mime:mime-type type={mime}/>
        <bookmark:applications>
          <bookmark:application name={name} exec="&apos;{program} %u&apos;" modified="{modified}" count="{count}"/>
        </bookmark:applications>
      </metadata>
    </info>
  </bookmark>"""


def stamp(moment):
    """A moment (seconds since 1970) as the list has it: "2026-11-20T23:45:16.110424Z"."""
    utc = datetime.datetime.fromtimestamp(moment, datetime.timezone.utc)
    return utc.strftime("%Y-%m-%dT%H:%M:%S.%fZ")


class RecentList:
    """The list of one scratch user. It is written whole by each `write`, over what other programs have put there."""

    def __init__(self, data_folder):
        self.path = pathlib.Path(data_folder) / "recently-used.xbel"
        self._entries = {}  # by document, in the order of their adding, as the list has it

    def opened(self, document, moment, mime="text/plain", program="mousepad"):
        """Notes that a program opened a document. Only a first opening sets when it was added and first visited."""
        document = str(document)
        old = self._entries.get(document, {"added": stamp(moment), "count": 0})
        entry = {"added": old["added"], "count": old["count"] + 1}
        entry["text"] = ENTRY.format(
            href=quoteattr("file://" + urllib.parse.quote(document)),
            added=entry["added"],
            modified=stamp(moment),
            mime=quoteattr(mime),
            name=quoteattr(program.capitalize()),
            program=program,
            count=entry["count"],
        )
        self._entries[document] = entry
        while len(self._entries) > LARGEST:
            del self._entries[next(iter(self._entries))]

    def write(self):
        """Puts the whole list in place by renaming, readable for its user alone."""
        self.path.parent.mkdir(parents=True, exist_ok=True)
        number, name = tempfile.mkstemp(prefix=self.path.name + ".", dir=self.path.parent)
        with open(number, "w", encoding="utf-8") as file:
            file.write(HEAD + "".join(entry["text"] for entry in self._entries.values()) + "\n</xbel>")
        os.replace(name, self.path)
