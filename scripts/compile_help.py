#!/usr/bin/env python3
"""Compiles the help sources into the one file that the help viewer reads.

Usage: compile_help.py OUTPUT SOURCE_FOLDER PICTURE_FOLDER...

A source "<name>.html" is one topic, well-formed XML of this shape:

    <topic title="Calendar" contexts="26">
    <p>Text with <b>markup</b>, a <a href="day-tree">link to a topic</a> and a picture:
    <img src="toolbar-daily.svg" width="16" height="16" alt="Daily View"/></p>
    </topic>

"contexts" lists the numbers under which the program asks for the topic. "contents.xml" holds the tree of contents.
Everything that a reader could stumble over is an error here: a link to nowhere, a missing picture, a topic outside the
tree, a number given twice, markup that the viewer does not draw. The format of the output is described in
src/help/HelpFile.h.
"""

import pathlib
import re
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


class SourceError(Exception):
    pass


class Topic:
    def __init__(self, path):
        self.name = path.stem
        self.links, self.pictures = [], []
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
        self.body = "".join(ElementTree.tostring(child, encoding="unicode") for child in root).strip()

    def _check(self, path, element):
        if element.tag not in ALLOWED or not set(element.keys()) <= ALLOWED[element.tag]:
            raise SourceError(f"{path}: <{element.tag}> with {list(element.keys())} is not part of the markup")
        if element.tag == "a":
            self.links.append(element.get("href"))
        if element.tag == "img":
            if not (element.get("src") and element.get("width") and element.get("height")):
                raise SourceError(f"{path}: a picture without a size")
            self.pictures.append(element.get("src"))
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


def compile_help(source_folder, picture_folders):
    sources = sorted(pathlib.Path(source_folder).glob("*.html"))
    topics = {path.stem: Topic(path) for path in sources}
    contents = read_contents(pathlib.Path(source_folder) / "contents.xml")
    pictures = {path.name: path for folder in picture_folders for path in pathlib.Path(folder).glob("*.svg")}
    check(topics, contents, pictures)

    output = b"Dayvane help 1\n"
    for topic in topics.values():
        payload = f"{topic.title}\n{topic.body}".encode("utf-8")
        output += record("topic", [topic.name, *map(str, topic.contexts)], payload)
    for name in sorted({name for topic in topics.values() for name in topic.pictures}):
        output += record("picture", [name], pictures[name].read_bytes())
    output += record("contents", [], "\n".join("\t" * depth + name for depth, name in contents).encode("ascii"))
    return output + b"end\n"


def main():
    if len(sys.argv) < 4:
        sys.exit(__doc__)
    try:
        output = compile_help(sys.argv[2], sys.argv[3:])
    except (SourceError, ElementTree.ParseError, OSError, ValueError) as error:
        sys.exit(f"{sys.argv[0]}: {error}")
    pathlib.Path(sys.argv[1]).write_bytes(output)


if __name__ == "__main__":
    main()
