#!/usr/bin/env python3
"""Compiles the help sources into the one file that the help viewer reads.

Usage: compile_help.py --system=SYSTEM [--bitmaps] OUTPUT SOURCE_FOLDER PICTURE_FOLDER...

A source "<name>.html" is one topic, well-formed XML of this shape:

    <topic title="Calendar" contexts="26">
    <p>Text with <b>markup</b>, a <a href="day-tree">link to a topic</a> and a picture:
    <img src="toolbar-daily.svg" width="16" height="16" alt="Daily View"/></p>
    </topic>

"contexts" lists the numbers under which the program asks for the topic. "contents.xml" holds the tree of contents.
Everything that a reader could stumble over is an error here: a link to nowhere, a missing picture, a topic outside the
tree, a number given twice, markup that the viewer does not draw. The format of the output is described in
src/help/HelpFile.h.

What is true of one system only has the attribute system="linux" or system="windows", and is left out of the help for
the other; <span> holds such words within a text, and vanishes:

    <p>It lies <span system="linux">in your home folder</span><span system="windows">beside the program</span>.</p>

The markup and the links of what is left out are checked too, so that no system's build breaks the help of the other.

With --bitmaps the pictures are packed as PNG, for a desktop that draws no SVG. They are large enough to be made smaller
for every screen: one drawn for a screen of one scale would be blurred on the others.
"""

import argparse
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
    "span": set(),
}
SYSTEMS = ("linux", "windows")
NAME = re.compile(r"[a-z0-9][a-z0-9.-]*\Z")


FINEST_SCALE = 3  # device pixels to a pixel of the page
SMALLEST_BITMAP = 192  # a small picture is used in several sizes, 16 to 64


class SourceError(Exception):
    pass


def append_text(parent, index, text):
    """Adds text before the child of that index."""
    if index == 0:
        parent.text = (parent.text or "") + (text or "")
    else:
        parent[index - 1].tail = (parent[index - 1].tail or "") + (text or "")


def leave_out(parent, child):
    index, tail = list(parent).index(child), child.tail
    parent.remove(child)
    # The line that a block had for itself goes with it; the blank behind words belongs to the text.
    if child.tag == "span" or (tail or "").strip():
        append_text(parent, index, tail)


def dissolve(parent, child):
    index, grandchildren = list(parent).index(child), list(child)
    parent.remove(child)
    append_text(parent, index, child.text)
    for offset, grandchild in enumerate(grandchildren):
        parent.insert(index + offset, grandchild)
    append_text(parent, index + len(grandchildren), child.tail)


def keep_for(system, parent):
    """Leaves what is true of this system, and nothing that says so."""
    for child in list(parent):
        if child.attrib.pop("system", system) != system:
            leave_out(parent, child)
            continue
        keep_for(system, child)
        if child.tag == "span":
            dissolve(parent, child)


class Topic:
    def __init__(self, path, system):
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
        keep_for(system, root)
        for image in root.iter("img"):
            self._use_picture(image)
        self.root = root

    def body(self):
        return "".join(ElementTree.tostring(child, encoding="unicode") for child in self.root).strip()

    def use_bitmaps(self):
        for image in self.root.iter("img"):
            image.set("src", image.get("src").replace(".svg?", ".png?"))

    def _check(self, path, element):
        if element.tag not in ALLOWED or not set(element.keys()) <= ALLOWED[element.tag] | {"system"}:
            raise SourceError(f"{path}: <{element.tag}> with {list(element.keys())} is not part of the markup")
        if element.get("system", SYSTEMS[0]) not in SYSTEMS:
            raise SourceError(f"{path}: no such system: {element.get('system')}")
        if element.tag == "a":
            self.links.append(element.get("href"))
        if element.tag == "img" and not (element.get("src") and element.get("width") and element.get("height")):
            raise SourceError(f"{path}: a picture without a size")

    def _use_picture(self, image):
        name, width = image.get("src"), int(image.get("width"))
        self.pictures[name] = max(width, self.pictures.get(name, 0))
        # The viewer draws a picture for the size that is part of its address: scaled bitmaps are blurred.
        image.set("src", "{src}?{width}x{height}".format(**image.attrib))


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


def compile_help(source_folder, picture_folders, system, bitmaps=False):
    sources = sorted(pathlib.Path(source_folder).glob("*.html"))
    topics = {path.stem: Topic(path, system) for path in sources}
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
    parser = argparse.ArgumentParser()
    parser.add_argument("--system", choices=SYSTEMS, required=True)
    parser.add_argument("--bitmaps", action="store_true")
    parser.add_argument("output", type=pathlib.Path)
    parser.add_argument("sources")
    parser.add_argument("pictures", nargs="+")
    arguments = parser.parse_args()
    try:
        output = compile_help(arguments.sources, arguments.pictures, arguments.system, arguments.bitmaps)
    except (SourceError, ElementTree.ParseError, OSError, ValueError, subprocess.CalledProcessError) as error:
        sys.exit(f"{sys.argv[0]}: {error}")
    arguments.output.write_bytes(output)


if __name__ == "__main__":
    main()
