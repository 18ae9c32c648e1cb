"""The program's own icon in any size, with smooth edges: the shapes of program_48.txt on its grid of 48 x 48."""

import math

GRID = 48
SAMPLES = 2  # along either side of a pixel

BLACK, WHITE, GREY = (0, 0, 0), (255, 255, 255), (0xC0, 0xC0, 0xC0)
NAVY, BLUE, CYAN = (0, 0, 0x80), (0, 0, 255), (0, 255, 255)
OLIVE, MAROON = (0x80, 0x80, 0), (0x80, 0, 0)


def box(left, top, right, bottom):
    return lambda x, y: left <= x < right and top <= y < bottom


def sheet(left, top, right, bottom, corner):
    """A box without its upper right corner."""
    return lambda x, y: left <= x < right and top <= y < bottom and x - y < right - corner - top


def folded(top, right, corner):
    """The corner of such a sheet, folded over."""
    return lambda x, y: x >= right - corner and y < top + corner and x - y < right - corner - top


def disc(x0, y0, radius):
    return lambda x, y: math.hypot(x - x0, y - y0) < radius


def arc(x0, y0, inner, outer, first, last):
    return lambda x, y: inner <= math.hypot(x - x0, y - y0) < outer and first < math.atan2(y - y0, x - x0) < last


def slanted_bar(x0, y0, length, low, high):
    """From a point down to the right; `low` and `high` bound it across."""
    step = math.sqrt(0.5)
    return lambda x, y: 0 <= (x - x0 + y - y0) * step < length and low <= (y - y0 - x + x0) * step < high


# From the back to the front.
SHAPES = [
    (sheet(4, 2, 32, 42, 9), NAVY), (sheet(5, 3, 31, 41, 8.6), WHITE),
    (folded(2, 32, 9), NAVY), (folded(4.2, 29.8, 5.8), GREY),
    (box(8, 7, 20, 9), BLUE), (box(8, 12, 20, 14), BLUE),
    *((box(8, top, 28, top + 2), GREY) for top in (18, 24, 30, 36)),
    (slanted_bar(31.5, 32.5, 19.5, -3.2, 3.2), BLACK),
    (slanted_bar(33, 34, 16.4, -2.2, 0), OLIVE), (slanted_bar(33, 34, 16.4, 0, 2.2), MAROON),
    (disc(24.5, 25.5, 12.4), BLACK), (disc(24.5, 25.5, 10.2), CYAN),
    (arc(24.5, 25.5, 6.8, 8.4, -2.9, -1.9), WHITE),
]


def colour_at(x, y):
    """Of the foremost shape there; none where the icon is transparent."""
    return next((colour for shape, colour in reversed(SHAPES) if shape(x, y)), None)


def pixel(column, row, scale):
    places = [(sample + 0.5) / SAMPLES for sample in range(SAMPLES)]
    found = [colour_at((column + x) * scale, (row + y) * scale) for y in places for x in places]
    covered = [colour for colour in found if colour is not None]
    if not covered:
        return (0, 0, 0, 0)
    mixed = (sum(part) // len(covered) for part in zip(*covered))
    return (*mixed, 255 * len(covered) // len(found))


def pixels(size):
    """Rows of (red, green, blue, alpha)."""
    return [[pixel(column, row, GRID / size) for column in range(size)] for row in range(size)]
