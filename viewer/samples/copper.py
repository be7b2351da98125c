"""The finished copper of a board: tracks, arcs, vias and zones, and the check that it joins what it should."""

from math import cos, hypot, pi, sin, atan2

from router import NARROW, VIA
from shapes import bounds, gap, pad_shape, placed_pads, to_segment
from zones import fill, inside_polygon

LEAST_GAP = 140


class Board:
    def __init__(self, design):
        self.design = design
        self.segments = []  # (net, layer name, x1, y1, x2, y2, width)
        self.arcs = []  # (net, layer name, start, middle, end, width); points in nanometres
        self.vias = []  # (net, x, y)
        self.zones = []  # (net, layer name, outline, priority, islands)

    def add_route(self, net, route, widths):
        for layer, x1, y1, x2, y2, width in route.segments:
            width = widths.get(net, width) if width != NARROW else width
            self.segments.append((net, ("F.Cu", "B.Cu")[layer], x1, y1, x2, y2, width))
        self.vias += [(net, x, y) for x, y in route.vias]

    def round_corners(self, nets, most=900):
        """Turns the corners of some nets' tracks into arcs."""
        ends = {}
        for i, (net, layer, x1, y1, x2, y2, _) in enumerate(self.segments):
            if net in nets:
                for x, y in ((x1, y1), (x2, y2)):
                    ends.setdefault((net, layer, x, y), []).append(i)
        fixed = {(net, layer, x, y) for net, x, y in self.vias for layer in ("F.Cu", "B.Cu")}
        for corner, meeting in ends.items():
            if len(meeting) == 2 and corner not in fixed:
                self._round(corner, meeting, most)

    def _round(self, corner, meeting, most):
        net, layer, x, y = corner
        arms = []
        for i in meeting:
            _, _, x1, y1, x2, y2, width = self.segments[i]
            far = (x2, y2) if (x1, y1) == (x, y) else (x1, y1)
            arms.append((i, far, hypot(far[0] - x, far[1] - y), width))
        if arms[0][3] != arms[1][3] or min(arm[2] for arm in arms) < 500:
            return
        cut = min(most, min(arm[2] for arm in arms) * 0.45) // 50 * 50
        points = [(x + (far[0] - x) * cut / length, y + (far[1] - y) * cut / length) for _, far, length, _ in arms]
        joints = [end for on_net, on, x1, y1, x2, y2, _ in self.segments if (on_net, on) == (net, layer)
                  for end in ((x1, y1), (x2, y2)) if end != (x, y)] + [via[1:] for via in self.vias if via[0] == net]
        if any(to_segment(*joint, x, y, *point) < 1 for joint in joints for point in points):
            return  # another track begins on what would be cut off
        (ax, ay), (bx, by) = points
        half = (atan2(ay - y, ax - x) - atan2(by - y, bx - x)) % (2 * pi) / 2
        if half > pi / 2:
            half = pi - half
        if not 0.3 < half < 1.5:
            return
        middle_angle = atan2((ay + by) / 2 - y, (ax + bx) / 2 - x)
        centre = cut / cos(half)
        near = centre - centre * sin(half)
        middle = (x + near * cos(middle_angle), y + near * sin(middle_angle))
        for (i, far, _, width), point in zip(arms, points):
            self.segments[i] = (net, layer, *point, *far, width)
        nm = [(round(px * 1000), round(py * 1000)) for px, py in (points[0], middle, points[1])]
        self.arcs.append((net, layer, *nm, arms[0][3]))

    def shapes(self, layer):
        """Everything copper on a layer: (net, shape, kind)."""
        outer = layer in ("F.Cu", "B.Cu")
        for part in self.design.parts:
            for pad, x, y, w, h in placed_pads(part):
                side = "B.Cu" if part.back else "F.Cu"
                if pad.kind != "smd" or side == layer:
                    yield part.nets.get(pad.number, ""), pad_shape(pad, x, y, w, h), "pad" if outer else "hole"
        for net, on, x1, y1, x2, y2, width in self.segments:
            if on == layer:
                yield net, ("bar", x1, y1, x2, y2, width / 2), "track"
        for net, on, a, b, c, width in self.arcs:
            if on == layer:
                for p, q in ((a, b), (b, c)):
                    yield net, ("bar", p[0] / 1000, p[1] / 1000, q[0] / 1000, q[1] / 1000, width / 2), "track"
        for net, x, y in self.vias:
            yield net, ("bar", x, y, x, y, VIA / 2), "via"

    def add_zone(self, net, layer, outline, priority, inner_zones=()):
        foreign, own = [], []
        for owner, shape, kind in self.shapes(layer):
            whole = tuple(round(v) if isinstance(v, float) else v for v in shape)
            if owner != net:
                foreign.append(whole)
            elif kind in ("pad", "hole"):
                own.append(whole)
        islands = fill(outline, foreign, own, inner_zones)
        touching = [shape for owner, shape, _ in self.shapes(layer) if owner == net]
        kept = [island for island in islands if any(touches(shape, island) for shape in touching)]
        self.zones.append((net, layer, outline, priority, kept))

    # the check

    def faults(self):
        """What a fabricator would send back: copper too near to other copper, and nets in pieces."""
        found = []
        layers = [name for name, _, _ in self.design.copper]
        for layer in layers:
            shapes = sorted(((bounds(shape), net, shape) for net, shape, _ in self.shapes(layer)), key=lambda s: s[0][0])
            for i, (box, net, shape) in enumerate(shapes):
                for other_box, other_net, other in shapes[i + 1:]:
                    if other_box[0] > box[2] + LEAST_GAP:
                        break
                    apart = net != other_net or (not net and other != shape)
                    if apart and other_box[1] < box[3] + LEAST_GAP and other_box[3] > box[1] - LEAST_GAP:
                        if gap(shape, other) < LEAST_GAP:
                            found.append(f"{layer}: {net or 'pad'} and {other_net or 'pad'} are too near at {shape[1:3]}")
        for net in self.design.nets():
            pieces = self.pieces(net)
            if len(pieces) > 1:
                found.append(f"{net} is in {len(pieces)} pieces")
        return found

    def pieces(self, net):
        """What of a net hangs together, the largest piece first: lists of (layers, shape or island)."""
        layers = [name for name, _, _ in self.design.copper]
        nodes = []
        for part in self.design.parts:
            for pad, x, y, w, h in placed_pads(part):
                if part.nets.get(pad.number, "") == net:
                    side = ["B.Cu"] if part.back else ["F.Cu"]
                    nodes.append((side if pad.kind == "smd" else layers, pad_shape(pad, x, y, w, h)))
        nodes += [(layers, ("bar", x, y, x, y, VIA / 2)) for owner, x, y in self.vias if owner == net]
        for layer in ("F.Cu", "B.Cu"):
            nodes += [([layer], shape) for owner, shape, kind in self.shapes(layer) if owner == net and kind == "track"]
        nodes += [([layer], island) for owner, layer, _, _, kept in self.zones if owner == net for island in kept]
        leader = list(range(len(nodes)))

        def find(i):
            while leader[i] != i:
                i = leader[i]
            return i

        for i, (on, a) in enumerate(nodes):
            for j in range(i + 1, len(nodes)):
                if set(on) & set(nodes[j][0]) and find(i) != find(j) and _meet(a, nodes[j][1]):
                    leader[find(j)] = find(i)
        pieces = {}
        for i, node in enumerate(nodes):
            pieces.setdefault(find(i), []).append(node)
        return sorted(pieces.values(), key=len, reverse=True)


def touches(shape, island):
    """Whether a pad, via or track meets an island of a zone."""
    points = [shape[1:3]]
    if shape[0] == "bar":
        points += [shape[3:5], ((shape[1] + shape[3]) / 2, (shape[2] + shape[4]) / 2)]
    return any(inside_polygon(island[0], *p) and not any(inside_polygon(hole, *p) for hole in island[1]) for p in points)


def _meet(a, b):
    island_a, island_b = not isinstance(a[0], str), not isinstance(b[0], str)
    if island_a or island_b:
        return not (island_a and island_b) and (touches(b, a) if island_a else touches(a, b))
    return gap(a, b) <= 0
