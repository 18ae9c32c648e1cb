#!/usr/bin/env python3
"""Turns the pixel maps beside this file into the program's icons and tool-bar bitmap.

A map has one letter per pixel, one line per row. The pictures keep to 16 colours. Those of 16 and 32 pixels, which
the device shows, are bitmaps of four bits per pixel, so that they look the same on every screen. Those of 48 and 256
are for the desktop and are PNG, which takes a tenth of the room.
"""

import pathlib
import struct
import sys
import zlib

import large_program_icon

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
# Each icon has a map of 48 x 48, one of 32 x 32 and one of 16 x 16.
ICONS = [
    "program", "question_file", "device", "handheld", "folder", "open_folder", "document", "application",
    "shortcut_mark", "delete", "replace_file", "replace_folder",
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


def bitmap_image(rows):
    mask = b"".join(packed((letter == TRANSPARENT for letter in row), 1) for row in reversed(rows))
    size = len(rows)
    return header(size, 2 * size) + palette() + colours(rows, 0) + mask


def red_green_blue_alpha(rows):
    def pixel(letter):
        return (0, 0, 0, 0) if letter == TRANSPARENT else (*reversed(PALETTE[LETTERS[letter]]), 255)

    return [[pixel(letter) for letter in row] for row in rows]


def filtered(lines, kind):
    """The lines of a PNG, each as its difference to nothing (0) or to the pixel before (1)."""
    for line in lines:
        before = bytes(4) + line[:-4] if kind == 1 else bytes(len(line))
        yield bytes((kind,)) + bytes((now - then) & 0xFF for now, then in zip(line, before))


def smallest_deflated(lines):
    candidates = []
    for kind in (0, 1):
        data = b"".join(filtered(lines, kind))
        for strategy in (zlib.Z_DEFAULT_STRATEGY, zlib.Z_FILTERED, zlib.Z_RLE):
            packer = zlib.compressobj(9, zlib.DEFLATED, 15, 9, strategy)
            candidates.append(packer.compress(data) + packer.flush())
    return min(candidates, key=len)


def png_image(pixels):
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    lines = [b"".join(bytes(pixel) for pixel in row) for row in pixels]
    head = struct.pack(">IIBBBBB", len(pixels[0]), len(pixels), 8, 6, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", smallest_deflated(lines))
            + chunk(b"IEND", b""))


def icon(images):
    """The file with these images: size, bits per pixel, data."""
    entries, data = b"", b""
    offset = 6 + 16 * len(images)
    for size, bits, image in images:
        # No byte holds 256: it is written as 0.
        entries += struct.pack("<BBBBHHII", size % 256, size % 256, 16 if bits == 4 else 0, 0, 1, bits, len(image),
                               offset + len(data))
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
        images = [(size, 4, bitmap_image(read_map(source / f"{name}_{size}.txt", size, size))) for size in (32, 16)]
        images.append((48, 32, png_image(red_green_blue_alpha(read_map(source / f"{name}_48.txt", 48, 48)))))
        if name == "program":
            images.append((256, 32, png_image(large_program_icon.pixels(256))))
        (target / f"{name}.ico").write_bytes(icon(images))
    (target / "dialog_bar.bmp").write_bytes(bitmap(read_map(source / "dialog_bar.txt", 80, 16)))


main()
