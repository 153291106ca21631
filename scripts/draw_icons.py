#!/usr/bin/env python3
"""Draws the program's pictures as Windows icons, each in the sizes of the common screen scales.

Usage: draw_icons.py OUTPUT_FOLDER PICTURE_FOLDER

Every "<name>.svg" of the picture folder becomes "<name>.ico". A picture that has drawings of its own for small sizes
("<name>-16.svg", "<name>-22.svg"), whose lines fall on whole pixels there, uses them for those and their multiples.
"""

import pathlib
import re
import subprocess
import sys
import tempfile

SIZES = (16, 20, 24, 32, 40, 48, 64)
LARGE = {"dayvane": (256,), "logo": (128, 256)}  # the shell shows the program's icon that large, a window the logo

# Of a picture with drawings of its own: the drawing for a size, and the pixels that it fills. The rest is a margin.
DRAWN = {16: ("-16", 16), 20: ("-22", 20), 24: ("-22", 22), 32: ("-16", 32)}


def height_of(source, width):
    """Of a drawing of this width: icons are square, and not every drawing is."""
    box = re.search(r'viewBox="\S+ \S+ (\S+) (\S+)"', source.read_text(encoding="utf-8"))
    return round(width * float(box[2]) / float(box[1]))


def draw(source, size, filled, target):
    height = height_of(source, filled)
    page = [f"--page-width={size}", f"--page-height={size}", f"--left={(size - filled) // 2}"]
    page.append(f"--top={(size - height) // 2}")
    command = ["rsvg-convert", f"--width={filled}", f"--height={height}", *page, f"--output={target}", source]
    subprocess.run(command, check=True)


def make_icon(picture, output, scratch):
    small = picture.with_name(picture.stem + "-16.svg").exists()
    drawings = []
    for size in SIZES + LARGE.get(picture.stem, ()):
        suffix, filled = DRAWN.get(size, ("", size)) if small else ("", size)
        target = scratch / f"{picture.stem}-{size}.png"
        draw(picture.with_name(picture.stem + suffix + ".svg"), size, filled, target)
        drawings.append(f"--raw={target}")
    command = ["icotool", "--create", f"--output={output / (picture.stem + '.ico')}", *drawings]
    subprocess.run(command, check=True)


def main():
    output, pictures = map(pathlib.Path, sys.argv[1:])
    output.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory() as scratch:
        for picture in sorted(pictures.glob("*.svg")):
            if not re.search(r"-\d+\Z", picture.stem):
                make_icon(picture, output, pathlib.Path(scratch))


main()
