#!/usr/bin/env python3
"""Draws the picture at the left of the installer's first and last page, as the bitmap that the installer takes.

Usage: draw_wizard_picture.py LOGO.svg PICTURE.bmp
"""

import pathlib
import struct
import subprocess
import sys
import zlib

WIDTH, HEIGHT = 164, 314  # the place for it at a scale of 100 %
PICTURE = """<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}">
  <linearGradient id="sky" x2="0" y2="1"><stop stop-color="#eef3fa"/><stop offset="1" stop-color="#9bb9e8"/></linearGradient>
  <rect width="{width}" height="{height}" fill="url(#sky)"/>
  {logo}
</svg>
"""
COLOUR_BYTES = {2: 3, 6: 4}  # by the kind of drawing: red, green, blue; the other says how far they cover the ground
KIND_AT = 25  # in its header


def picture_with(logo):
    placed = logo.replace("<svg ", '<svg x="17" y="86" width="130" height="99" ', 1)
    return PICTURE.format(width=WIDTH, height=HEIGHT, logo=placed)


def chunk_data(png):
    """The compressed points: the data of all its chunks of that kind, one after another."""
    data, at = b"", 8
    while at < len(png):
        length, kind = struct.unpack_from(">I4s", png, at)
        if kind == b"IDAT":
            data += png[at + 8 : at + 8 + length]
        at += length + 12
    return zlib.decompress(data)


def nearest(left, above, corner):
    """The one of three neighbours that is nearest to what a plane through them has here."""
    plane = left + above - corner
    return min((left, above, corner), key=lambda value: abs(plane - value))


def rows_of(png):
    """The rows of points from the top. Each byte is stored as its difference to what its neighbours let expect."""
    expected = (
        lambda left, above, corner: 0,
        lambda left, above, corner: left,
        lambda left, above, corner: above,
        lambda left, above, corner: (left + above) // 2,
        nearest,
    )
    colours = COLOUR_BYTES[png[KIND_AT]]
    data, length = chunk_data(png), WIDTH * colours
    above = bytes(length + colours)
    for start in range(0, len(data), length + 1):
        row = bytearray(colours)  # what is left of the first point
        expect = expected[data[start]]
        for at, difference in enumerate(data[start + 1 : start + 1 + length]):
            row.append((difference + expect(row[at], above[at + colours], above[at])) & 0xFF)
        yield [bytes(row[at : at + 3]) for at in range(colours, len(row), colours)]
        above = bytes(row)


def bitmap(rows):
    """24 bits for a point, blue first; rows from the bottom, each a multiple of four bytes."""
    padding = bytes(-WIDTH * 3 % 4)
    points = b""
    for row in reversed(list(rows)):
        points += b"".join(point[::-1] for point in row) + padding
    header = struct.pack("<IiiHHIIiiII", 40, WIDTH, HEIGHT, 1, 24, 0, len(points), 0, 0, 0, 0)
    return struct.pack("<2sIHHI", b"BM", 14 + len(header) + len(points), 0, 0, 14 + len(header)) + header + points


def main():
    logo, picture = map(pathlib.Path, sys.argv[1:])
    drawing = picture_with(logo.read_text(encoding="utf-8")).encode()
    png = subprocess.run(["rsvg-convert"], input=drawing, stdout=subprocess.PIPE, check=True).stdout
    picture.write_bytes(bitmap(rows_of(png)))


main()
