"""Fills copper zones: a field of distances to everything that the copper must keep away from, and its zero line.

The zero line is followed through the squares of a grid with the crossing points interpolated, so that it runs smoothly
round pads and along tracks.
"""

from math import hypot

from design import CORNER, HEIGHT, WIDTH
from shapes import bounds, distance, inside_outline, to_segment

STEP = 200
COLUMNS, ROWS = WIDTH // STEP + 1, HEIGHT // STEP + 1
CLEARANCE = 310  # 0.25 mm is promised; the zero line may run a little nearer than the field says
EDGE = 400
SPOKE = 250  # half the width of a thermal spoke
LEAST = 125  # half the width of the narrowest copper


def inside_polygon(polygon, x, y):
    inside = False
    for (x1, y1), (x2, y2) in zip(polygon, polygon[1:] + polygon[:1]):
        if (y1 > y) != (y2 > y) and x < (x2 - x1) * (y - y1) / (y2 - y1) + x1:
            inside = not inside
    return inside


def depth_in(polygon, x, y):
    """How far a point lies within a polygon; negative outside."""
    reach = min(to_segment(x, y, *a, *b) for a, b in zip(polygon, polygon[1:] + polygon[:1]))
    return reach if inside_polygon(polygon, x, y) else -reach


class Field:
    def __init__(self, outline):
        self.values = [0.0] * (COLUMNS * ROWS)
        for row in range(ROWS):
            for column in range(COLUMNS):
                x, y = column * STEP, row * STEP
                self.values[row * COLUMNS + column] = min(inside_outline(x, y, WIDTH, HEIGHT, CORNER) - EDGE,
                                                          depth_in(outline, x, y))

    def limit(self, box, value):
        """Lowers the field within a box to `value(x, y)`."""
        x1, y1, x2, y2 = box
        margin = CLEARANCE + 4 * STEP
        for row in range(max(0, (y1 - margin) // STEP), min(ROWS - 1, (y2 + margin) // STEP) + 1):
            for column in range(max(0, (x1 - margin) // STEP), min(COLUMNS - 1, (x2 + margin) // STEP) + 1):
                at = row * COLUMNS + column
                self.values[at] = min(self.values[at], value(column * STEP, row * STEP))

    def keep_from(self, shape):
        self.limit(bounds(shape), lambda x, y: distance(shape, x, y) - CLEARANCE)

    def keep_from_polygon(self, polygon):
        xs, ys = [p[0] for p in polygon], [p[1] for p in polygon]
        self.limit((min(xs), min(ys), max(xs), max(ys)), lambda x, y: -depth_in(polygon, x, y) - CLEARANCE)

    def relieve(self, shape):
        """Surrounds a pad of the zone's own net with a gap that four spokes cross."""
        x1, y1, x2, y2 = bounds(shape)
        cx, cy, reach_x, reach_y = (x1 + x2) / 2, (y1 + y2) / 2, (x2 - x1) / 2 + 500, (y2 - y1) / 2 + 500

        def value(x, y):
            dx, dy = abs(x - cx), abs(y - cy)
            spoke = max(min(SPOKE - dy, reach_x - dx), min(SPOKE - dx, reach_y - dy))
            return max(distance(shape, x, y) - CLEARANCE, spoke)

        self.limit((x1, y1, x2, y2), value)

    def drop_slivers(self):
        """Takes away what is too narrow to be etched: copper that is near no point of enough depth."""
        core = {at for at, value in enumerate(self.values) if value >= LEAST}
        near = set()
        for at in core:
            for row in (-1, 0, 1):
                near.update(range(at + row * COLUMNS - 1, at + row * COLUMNS + 2))
        for at, value in enumerate(self.values):
            if value > 0 and at not in near:
                self.values[at] = -1.0

    def contours(self):
        """The closed zero lines: those round copper have a positive area, those round a hole a negative one."""
        after = {}
        value = self.values
        for row in range(ROWS - 1):
            for column in range(COLUMNS - 1):
                at = row * COLUMNS + column
                corners = (at, at + 1, at + COLUMNS + 1, at + COLUMNS)
                signs = [value[corner] > 0 for corner in corners]
                if all(signs) or not any(signs):
                    continue
                crossings = [side for side in range(4) if signs[side] != signs[(side + 1) % 4]]
                middle = sum(value[corner] for corner in corners) > 0
                for side in crossings:
                    if signs[side]:  # copper before, none after: the line leaves here
                        continue
                    turn = 1 if len(crossings) == 2 or not middle else -1
                    other = (side + turn) % 4
                    while other not in crossings or not signs[other]:
                        other = (other + turn) % 4
                    after[self._edge(corners, side)] = self._edge(corners, other)
        return [self._line(loop)[::-1] for loop in _loops(after)]

    @staticmethod
    def _edge(corners, side):
        a, b = corners[side], corners[(side + 1) % 4]
        return (a, b) if a < b else (b, a)

    def _line(self, edges):
        line = []
        for a, b in edges:
            share = self.values[a] / (self.values[a] - self.values[b])
            x1, y1, x2, y2 = a % COLUMNS, a // COLUMNS, b % COLUMNS, b // COLUMNS
            line.append((round((x1 + share * (x2 - x1)) * STEP), round((y1 + share * (y2 - y1)) * STEP)))
        return simplified(line)


def _loops(after):
    while after:
        first = min(after)
        loop = [first]
        at = after.pop(first)
        while at != first:
            loop.append(at)
            at = after.pop(at)
        yield loop


def simplified(line, tolerance=12):
    """The line without the points that lie within `tolerance` of a straight run."""
    if len(line) < 8:
        return line
    far = max(range(len(line)), key=lambda i: (hypot(line[i][0] - line[0][0], line[i][1] - line[0][1]), i))
    ring = line + [line[0]]
    keep = {0, far, len(line)}
    spans = [(0, far), (far, len(line))]
    while spans:
        low, high = spans.pop()
        if high - low < 2:
            continue
        worst = max(range(low + 1, high), key=lambda i: (to_segment(*ring[i], *ring[low], *ring[high]), i))
        if to_segment(*ring[worst], *ring[low], *ring[high]) > tolerance:
            keep.add(worst)
            spans += [(low, worst), (worst, high)]
    return [ring[i] for i in sorted(keep)[:-1]]


def area(polygon):
    return sum(x1 * y2 - x2 * y1 for (x1, y1), (x2, y2) in zip(polygon, polygon[1:] + polygon[:1])) / 2


def islands(contours):
    """Each outer line with the holes directly in it."""
    outers = [(line, []) for line in contours if area(line) > 0]
    for hole in (line for line in contours if area(line) < 0):
        around = [outer for outer in outers if inside_polygon(outer[0], *hole[0])]
        if around:
            min(around, key=lambda outer: area(outer[0]))[1].append(hole)
    return outers


def joined(outer, holes):
    """One line for an island: each hole is joined to what lies left of it by a cut without width."""
    line = list(outer)
    for hole in sorted(holes, key=lambda hole: min(hole)):
        start = hole.index(min(hole))
        x, y = hole[start]
        best = None
        for i in range(len(line)):
            (x1, y1), (x2, y2) = line[i], line[(i + 1) % len(line)]
            if (y1 > y) == (y2 > y) and not (y1 == y == y2):
                continue
            at = max(x1, x2) if y1 == y2 else x1 + (x2 - x1) * (y - y1) / (y2 - y1)
            if at <= x and (best is None or at > best[0]):
                best = (at, i)
        at, i = best
        cut = (round(at), y)
        line[i + 1:i + 1] = [cut] + hole[start:] + hole[:start] + [hole[start], cut]
    return line


def fill(outline, foreign, own_pads, foreign_zones):
    """The islands of copper of a zone: (outer line, holes)."""
    field = Field(outline)
    for pad in own_pads:
        field.relieve(pad)
    for shape in foreign:
        field.keep_from(shape)
    for polygon in foreign_zones:
        field.keep_from_polygon(polygon)
    field.drop_slivers()
    return islands(field.contours())
