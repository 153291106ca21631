#!/usr/bin/env python3
"""Compiles the help sources into the one file that the help viewer reads.

Usage: compile_help.py [--bitmaps] OUTPUT SOURCE_FOLDER PICTURE_FOLDER...

A source "<name>.html" is one topic, well-formed XML of this shape:

    <topic title="Calendar" contexts="26">
    <p>Text with <b>markup</b>, a <a href="day-tree">link to a topic</a> and a picture:
    <img src="toolbar-daily.svg" width="16" height="16" alt="Daily View"/></p>
    </topic>

"contexts" lists the numbers under which the program asks for the topic. "contents.xml" holds the tree of contents.
Everything that a reader could stumble over is an error here: a link to nowhere, a missing picture, a topic outside the
tree, a number given twice, markup that the viewer does not draw. The format of the output is described in
src/help/HelpFile.h.

With --bitmaps the pictures are packed as PNG, for a desktop that draws no SVG. They are large enough to be made smaller
for every screen: one drawn for a screen of one scale would be blurred on the others.
"""

import pathlib
import re
import subprocess
import sys
import xml.etree.ElementTree as ElementTree

ALLOWED = {
    "p": {"class"},
    "h2": set(),
    "ol": set(),
    "ul": set(),
    "li": set(),
    "b": set(),
    "i": set(),
    "br": set(),
    "a": {"href"},
    "img": {"src", "width", "height", "alt"},
    "table": {"class"},
    "tr": set(),
    "td": set(),
    "th": set(),
}
NAME = re.compile(r"[a-z0-9][a-z0-9.-]*\Z")


FINEST_SCALE = 3  # device pixels to a pixel of the page
SMALLEST_BITMAP = 192  # a small picture is used in several sizes, 16 to 64


class SourceError(Exception):
    pass


class Topic:
    def __init__(self, path):
        self.name = path.stem
        self.links, self.pictures = [], {}  # the pictures' names, each with its greatest width
        root = ElementTree.parse(path).getroot()
        if root.tag != "topic" or not root.get("title"):
            raise SourceError(f"{path}: not a topic with a title")
        if not NAME.match(self.name):
            raise SourceError(f"{path}: the name of a topic is small letters, digits and hyphens")
        self.title = root.get("title")
        self.contexts = [int(number) for number in root.get("contexts", "").split()]
        for element in root.iter():
            if element is not root:
                self._check(path, element)
        self.root = root

    def body(self):
        return "".join(ElementTree.tostring(child, encoding="unicode") for child in self.root).strip()

    def use_bitmaps(self):
        for image in self.root.iter("img"):
            image.set("src", image.get("src").replace(".svg?", ".png?"))

    def _check(self, path, element):
        if element.tag not in ALLOWED or not set(element.keys()) <= ALLOWED[element.tag]:
            raise SourceError(f"{path}: <{element.tag}> with {list(element.keys())} is not part of the markup")
        if element.tag == "a":
            self.links.append(element.get("href"))
        if element.tag == "img":
            if not (element.get("src") and element.get("width") and element.get("height")):
                raise SourceError(f"{path}: a picture without a size")
            name, width = element.get("src"), int(element.get("width"))
            self.pictures[name] = max(width, self.pictures.get(name, 0))
            # The viewer draws a picture for the size that is part of its address: scaled bitmaps are blurred.
            element.set("src", "{src}?{width}x{height}".format(**element.attrib))


def read_contents(path):
    """The tree as (depth, name), top down."""

    def walk(element, depth):
        for child in element:
            yield depth, child.get("name")
            yield from walk(child, depth + 1)

    return list(walk(ElementTree.parse(path).getroot(), 0))


def check(topics, contents, pictures):
    listed = [name for _, name in contents]
    if sorted(listed) != sorted(topics):
        raise SourceError(
            f"contents.xml and the topics differ: {sorted(set(listed) ^ set(topics)) or 'one is listed twice'}"
        )
    contexts = [context for topic in topics.values() for context in topic.contexts]
    if len(contexts) != len(set(contexts)):
        raise SourceError(f"a context number is given twice: {sorted(contexts)}")
    for topic in topics.values():
        for link in topic.links:
            if link not in topics:
                raise SourceError(f"{topic.name}: link to a topic that does not exist: {link}")
        for picture in topic.pictures:
            if picture not in pictures:
                raise SourceError(f"{topic.name}: no such picture: {picture}")


def record(kind, words, payload):
    header = " ".join([kind, str(len(payload)), *words])
    return header.encode("ascii") + b"\n" + payload + b"\n"


def bitmap(path, width):
    width = max(SMALLEST_BITMAP, FINEST_SCALE * width)
    command = ["rsvg-convert", f"--width={width}", "--keep-aspect-ratio", path]
    return subprocess.run(command, check=True, capture_output=True).stdout


def picture_records(topics, pictures, bitmaps):
    widths = {}
    for topic in topics.values():
        for name, width in topic.pictures.items():
            widths[name] = max(width, widths.get(name, 0))
    for name, width in sorted(widths.items()):
        if bitmaps:
            yield record("picture", [name.replace(".svg", ".png")], bitmap(pictures[name], width))
        else:
            yield record("picture", [name], pictures[name].read_bytes())


def compile_help(source_folder, picture_folders, bitmaps=False):
    sources = sorted(pathlib.Path(source_folder).glob("*.html"))
    topics = {path.stem: Topic(path) for path in sources}
    contents = read_contents(pathlib.Path(source_folder) / "contents.xml")
    pictures = {path.name: path for folder in picture_folders for path in pathlib.Path(folder).glob("*.svg")}
    check(topics, contents, pictures)

    output = b"Dayvane help 1\n"
    for topic in topics.values():
        if bitmaps:
            topic.use_bitmaps()
        payload = f"{topic.title}\n{topic.body()}".encode("utf-8")
        output += record("topic", [topic.name, *map(str, topic.contexts)], payload)
    output += b"".join(picture_records(topics, pictures, bitmaps))
    output += record("contents", [], "\n".join("\t" * depth + name for depth, name in contents).encode("ascii"))
    return output + b"end\n"


def main():
    arguments = [argument for argument in sys.argv[1:] if argument != "--bitmaps"]
    if len(arguments) < 3:
        sys.exit(__doc__)
    try:
        output = compile_help(arguments[1], arguments[2:], bitmaps="--bitmaps" in sys.argv)
    except (SourceError, ElementTree.ParseError, OSError, ValueError, subprocess.CalledProcessError) as error:
        sys.exit(f"{sys.argv[0]}: {error}")
    pathlib.Path(arguments[0]).write_bytes(output)


if __name__ == "__main__":
    main()
