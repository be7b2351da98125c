"""Copper shapes with the distances between them, in micrometres.

A shape is a box ("box", x, y, half width, half height) or a stadium ("bar", x1, y1, x2, y2, radius); a disc is a bar
without length.
"""

from math import hypot

from footprints import LIBRARY


def turned(x, y, rotation):
    """Counter-clockwise on the screen, by a multiple of 90 degrees."""
    for _ in range(rotation // 90 % 4):
        x, y = y, -x
    return x, y


def placed_pads(part):
    """The pads of a part on the board: (pad, x, y, width, height) with the sizes as they lie."""
    for pad in LIBRARY[part.footprint].pads:
        x, y = turned(pad.x, -pad.y if part.back else pad.y, part.rotation)
        w, h = (pad.h, pad.w) if part.rotation % 180 else (pad.w, pad.h)
        yield pad, part.x + x, part.y + y, w, h


def pad_shape(pad, x, y, w, h):
    if pad.shape == "circle" or (pad.shape == "oval" and w == h):
        return ("bar", x, y, x, y, w // 2)
    if pad.shape == "oval":
        reach = abs(w - h) // 2
        return ("bar", x - reach, y, x + reach, y, h // 2) if w > h else ("bar", x, y - reach, x, y + reach, w // 2)
    return ("box", x, y, w // 2, h // 2)


def bounds(shape):
    if shape[0] == "box":
        _, x, y, w, h = shape
        return x - w, y - h, x + w, y + h
    _, x1, y1, x2, y2, r = shape
    return min(x1, x2) - r, min(y1, y2) - r, max(x1, x2) + r, max(y1, y2) + r


def to_segment(px, py, x1, y1, x2, y2):
    """The distance of a point from a line between two points."""
    dx, dy = x2 - x1, y2 - y1
    length2 = dx * dx + dy * dy
    t = 0 if length2 == 0 else max(0.0, min(1.0, ((px - x1) * dx + (py - y1) * dy) / length2))
    return hypot(px - x1 - t * dx, py - y1 - t * dy)


def distance(shape, px, py):
    """The distance of a point from a shape, negative within it."""
    if shape[0] == "bar":
        _, x1, y1, x2, y2, r = shape
        return to_segment(px, py, x1, y1, x2, y2) - r
    _, x, y, w, h = shape
    dx, dy = abs(px - x) - w, abs(py - y) - h
    if dx <= 0 and dy <= 0:
        return max(dx, dy)
    return hypot(max(dx, 0), max(dy, 0))


def _axis(shape):
    """The lines that a shape consists of, and how thick they are."""
    if shape[0] == "bar":
        return [shape[1:5]], shape[5]
    _, x, y, w, h = shape
    return [(x - w, y - h, x + w, y - h), (x + w, y - h, x + w, y + h), (x + w, y + h, x - w, y + h),
            (x - w, y + h, x - w, y - h)], 0


def _cross(a, b):
    def side(x1, y1, x2, y2, x, y):
        return (x2 - x1) * (y - y1) - (y2 - y1) * (x - x1)

    return (side(*a, b[0], b[1]) > 0) != (side(*a, b[2], b[3]) > 0) and \
        (side(*b, a[0], a[1]) > 0) != (side(*b, a[2], a[3]) > 0)


def gap(a, b):
    """The distance between two shapes, 0 or less where they touch."""
    for one, other in ((a, b), (b, a)):
        if one[0] == "box":
            if distance(one, other[1], other[2]) <= 0:
                return 0
    lines_a, radius_a = _axis(a)
    lines_b, radius_b = _axis(b)
    least = float("inf")
    for p in lines_a:
        for q in lines_b:
            if _cross(p, q):
                return -radius_a - radius_b
            least = min(least, to_segment(p[0], p[1], *q), to_segment(p[2], p[3], *q), to_segment(q[0], q[1], *p),
                        to_segment(q[2], q[3], *p))
    return least - radius_a - radius_b


def inside_outline(px, py, width, height, corner):
    """How far a point lies within a rectangle with round corners; negative outside."""
    dx, dy = abs(px - width / 2) - (width / 2 - corner), abs(py - height / 2) - (height / 2 - corner)
    return corner - (hypot(max(dx, 0), max(dy, 0)) + min(max(dx, dy), 0))
