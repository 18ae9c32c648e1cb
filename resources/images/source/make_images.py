#!/usr/bin/env python3
"""Turns the pixel maps beside this file into the program's icons and tool-bar bitmap.

A map has one letter per pixel, one line per row. The pictures keep to 16 colours, four bits per pixel, so
that they look the same on every screen.
"""

import pathlib
import struct
import sys

# The 16 fixed colours of the platform's palette, as blue, green, red.
PALETTE = [
    (0x00, 0x00, 0x00), (0x00, 0x00, 0x80), (0x00, 0x80, 0x00), (0x00, 0x80, 0x80),
    (0x80, 0x00, 0x00), (0x80, 0x00, 0x80), (0x80, 0x80, 0x00), (0xC0, 0xC0, 0xC0),
    (0x80, 0x80, 0x80), (0x00, 0x00, 0xFF), (0x00, 0xFF, 0x00), (0x00, 0xFF, 0xFF),
    (0xFF, 0x00, 0x00), (0xFF, 0x00, 0xFF), (0xFF, 0xFF, 0x00), (0xFF, 0xFF, 0xFF),
]
LETTERS = {
    "k": 0, "r": 1, "g": 2, "n": 4, "b": 12, "c": 14, "o": 3, "s": 7, "d": 8, "e": 9, "y": 11, "w": 15,
}
TRANSPARENT = "."
# Each icon has a map of 32 x 32 and one of 16 x 16.
ICONS = [
    "program", "question_file", "device", "folder", "open_folder", "document", "application", "shortcut_mark",
    "delete", "replace_file", "replace_folder",
]
FACE = 7  # the grey that a tool bar replaces by the colour of its buttons


def read_map(path, width, height):
    rows = path.read_text().splitlines()
    if len(rows) != height or any(len(row) != width for row in rows):
        sys.exit(f"{path.name}: not {width} x {height}")
    for row in rows:
        for letter in row:
            if letter != TRANSPARENT and letter not in LETTERS:
                sys.exit(f"{path.name}: no colour '{letter}'")
    return rows


def packed(values, bits):
    """One row of pixels, padded to four bytes."""
    row, byte, filled = bytearray(), 0, 0
    for value in values:
        byte = byte << bits | value
        filled += bits
        if filled == 8:
            row.append(byte)
            byte, filled = 0, 0
    if filled:
        row.append(byte << (8 - filled))
    return bytes(row) + bytes(-len(row) % 4)


def header(width, height):
    return struct.pack("<IiiHHIIiiII", 40, width, height, 1, 4, 0, 0, 0, 0, 16, 0)


def palette():
    return b"".join(bytes((*colour, 0)) for colour in PALETTE)


def colours(rows, background):
    return b"".join(packed((LETTERS.get(letter, background) for letter in row), 4) for row in reversed(rows))


def icon_image(rows):
    mask = b"".join(packed((letter == TRANSPARENT for letter in row), 1) for row in reversed(rows))
    size = len(rows)
    return header(size, 2 * size) + palette() + colours(rows, 0) + mask


def icon(images):
    entries, data = b"", b""
    offset = 6 + 16 * len(images)
    for rows in images:
        image = icon_image(rows)
        entries += struct.pack("<BBBBHHII", len(rows), len(rows), 16, 0, 1, 4, len(image), offset + len(data))
        data += image
    return struct.pack("<HHH", 0, 1, len(images)) + entries + data


def bitmap(rows):
    pixels = colours(rows, FACE)
    start = 14 + 40 + 64
    head = struct.pack("<2sIHHI", b"BM", start + len(pixels), 0, 0, start)
    return head + header(len(rows[0]), len(rows)) + palette() + pixels


def main():
    source = pathlib.Path(__file__).parent
    target = source.parent
    for name in ICONS:
        images = [read_map(source / f"{name}_{size}.txt", size, size) for size in (32, 16)]
        (target / f"{name}.ico").write_bytes(icon(images))
    (target / "dialog_bar.bmp").write_bytes(bitmap(read_map(source / "dialog_bar.txt", 80, 16)))


main()
