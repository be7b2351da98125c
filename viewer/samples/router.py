"""Joins the pads of a design with tracks: a search on a grid of two layers that may take up other nets' tracks again.

Everything is decided by the order of lists and by whole numbers, so that one design always gives one board.
"""

from heapq import heappop, heappush

from design import HEIGHT, POWER, WIDTH, CORNER
from shapes import bounds, distance, inside_outline, pad_shape, placed_pads

GRID = 250
COLUMNS, ROWS = WIDTH // GRID + 1, HEIGHT // GRID + 1
CELLS = COLUMNS * ROWS
CLEARANCE = 180
NARROW, WIDE = 250, 600
VIA, VIA_DRILL = 600, 300
MARGIN = {NARROW: NARROW // 2 + CLEARANCE, WIDE: WIDE // 2 + CLEARANCE}
STEPS = [(1, 0, 10), (-1, 0, 10), (0, 1, 10), (0, -1, 10), (1, 1, 14), (1, -1, 14), (-1, 1, 14), (-1, -1, 14)]
VIA_COST, TURN_COST, CROSS_COST = 90, 3, 150
PATIENCE = {NARROW: 1 << 30, WIDE: 40000}  # steps of a search; a power net that finds no wide way goes narrow
NOBODY = ""  # the owner of what no net may touch


def place(cell):
    return cell % COLUMNS * GRID, cell // COLUMNS * GRID


class Field:
    """Who keeps others away from the cells of one layer: for each cell how many shapes of each net."""

    def __init__(self):
        self.owners = [None] * CELLS

    def add(self, cells, net):
        for cell in cells:
            owners = self.owners[cell]
            if owners is None:
                self.owners[cell] = {net: 1}
            else:
                owners[net] = owners.get(net, 0) + 1

    def remove(self, cells, net):
        for cell in cells:
            owners = self.owners[cell]
            owners[net] -= 1
            if owners[net] == 0:
                del owners[net]
                if not owners:
                    self.owners[cell] = None


def cells_within(shape, margin):
    """The cells of the grid that are nearer than `margin` to a shape."""
    x1, y1, x2, y2 = bounds(shape)
    first_column, last_column = max(0, (x1 - margin) // GRID), min(COLUMNS - 1, (x2 + margin) // GRID + 1)
    first_row, last_row = max(0, (y1 - margin) // GRID), min(ROWS - 1, (y2 + margin) // GRID + 1)
    return [row * COLUMNS + column
            for row in range(first_row, last_row + 1)
            for column in range(first_column, last_column + 1)
            if distance(shape, column * GRID, row * GRID) < margin]


class Route:
    """The copper of one net: segments (layer, x1, y1, x2, y2, width) and vias (x, y)."""

    def __init__(self):
        self.segments = []
        self.vias = []
        self.cells = set()  # (layer, cell) that a further connection may start from


class Router:
    def __init__(self, design):
        self.design = design
        self.hard = {(layer, margin): Field() for layer in (0, 1) for margin in (NARROW, WIDE)}
        self.soft = {(layer, margin): Field() for layer in (0, 1) for margin in (NARROW, WIDE)}
        self.no_via = [False] * CELLS
        self.pads = {}  # net to its pads: (x, y, shape, layers)
        self.routes = {}
        self.history = [0] * (2 * CELLS)
        self._place_edge()
        for part in design.parts:
            self._place_part(part)

    def _place_edge(self):
        for margin in (NARROW, WIDE):
            keep = 300 + MARGIN[margin]
            cells = [cell for cell in range(CELLS)
                     if inside_outline(*place(cell), WIDTH, HEIGHT, CORNER) < keep]
            for layer in (0, 1):
                self.hard[layer, margin].add(cells, NOBODY)

    def _place_part(self, part):
        for pad, x, y, w, h in placed_pads(part):
            shape = pad_shape(pad, x, y, w, h)
            layers = (1 if part.back else 0,) if pad.kind == "smd" else (0, 1)
            net = part.nets.get(pad.number, NOBODY)
            if part.footprint == "HOLE":
                shape = ("bar", x, y, x, y, 3000)  # the screw's head
            elif pad.kind == "np_thru_hole":
                shape = ("bar", x, y, x, y, w // 2 + 80)  # copper keeps further from a bare hole
            if net != NOBODY:
                self.pads.setdefault(net, []).append((x, y, shape, layers))
            for margin in (NARROW, WIDE):
                cells = cells_within(shape, MARGIN[margin])
                for layer in layers:
                    self.hard[layer, margin].add(cells, net)
            for cell in cells_within(shape, VIA // 2 + 100):
                self.no_via[cell] = True

    # placing and taking up the tracks of a net

    def _stamps(self, route):
        for layer, x1, y1, x2, y2, width in route.segments:
            yield layer, ("bar", x1, y1, x2, y2, width // 2)
        for x, y in route.vias:
            for layer in (0, 1):
                yield layer, ("bar", x, y, x, y, VIA // 2)

    def _mark(self, net, route, add):
        for layer, shape in self._stamps(route):
            for margin in (NARROW, WIDE):
                field = self.soft[layer, margin]
                (field.add if add else field.remove)(cells_within(shape, MARGIN[margin]), net)

    def lay(self, net, route):
        self.routes[net] = route
        self._mark(net, route, True)

    def fix(self, net, route):
        """Lays a route that stays where it is."""
        for layer, shape in self._stamps(route):
            for margin in (NARROW, WIDE):
                self.hard[layer, margin].add(cells_within(shape, MARGIN[margin]), net)
        for x, y in route.vias:
            for cell in cells_within(("bar", x, y, x, y, VIA_DRILL), 300):
                self.no_via[cell] = True

    def take_up(self, net):
        self._mark(net, self.routes.pop(net), False)

    # the search

    def _others(self, field, cell, net):
        owners = field.owners[cell]
        return owners is not None and (len(owners) > 1 or net not in owners)

    def is_blocked(self, layer, x, y, net):
        """Whether something that stays keeps a narrow track of the net from running through a place."""
        return self._others(self.hard[layer, NARROW], round(y / GRID) * COLUMNS + round(x / GRID), net)

    def _via_fits(self, cell, net, crossing):
        if self.no_via[cell]:
            return False
        for layer in (0, 1):
            if self._others(self.hard[layer, WIDE], cell, net):
                return False
            if not crossing and self._others(self.soft[layer, WIDE], cell, net):
                return False
        return True

    def search(self, net, starts, goals, width, crossing):
        """The cheapest way from any start to any goal, as a list of (layer, cell), or None. `goals` may be a function of
        layer and cell. With `crossing`, tracks of other nets may be crossed at a price."""
        hard = [self.hard[layer, width].owners for layer in (0, 1)]
        soft = [self.soft[layer, width].owners for layer in (0, 1)]
        aim = None
        if not callable(goals):
            xs = [cell % COLUMNS for _, cell in goals]
            ys = [cell // COLUMNS for _, cell in goals]
            aim = (min(xs), max(xs), min(ys), max(ys))

        def guess(column, row):
            if aim is None:
                return 0
            dx = max(aim[0] - column, 0, column - aim[1])
            dy = max(aim[2] - row, 0, row - aim[3])
            return 10 * max(dx, dy) + 4 * min(dx, dy)

        best = {}
        came = {}
        queue = []
        for layer, cell in sorted(starts):
            if self._others(self.hard[layer, width], cell, net):
                continue  # a pad may be too narrow to leave it with a wide track here
            key = layer * CELLS + cell
            best[key] = 0
            came[key] = (-1, None)
            heappush(queue, (guess(cell % COLUMNS, cell // COLUMNS), 0, key))
        for _ in range(PATIENCE[width]):
            if not queue:
                break
            _, cost, key = heappop(queue)
            if cost > best[key]:
                continue
            layer, cell = divmod(key, CELLS)
            if goals(layer, cell) if callable(goals) else (layer, cell) in goals:
                return self._way(came, key)
            column, row = cell % COLUMNS, cell // COLUMNS
            direction = came[key][1]
            for dx, dy, step in STEPS:
                if not (0 <= column + dx < COLUMNS and 0 <= row + dy < ROWS):
                    continue
                near = cell + dy * COLUMNS + dx
                owners = hard[layer][near]
                if owners is not None and (len(owners) > 1 or net not in owners):
                    continue
                price = step + (2 if (dx if layer else dy) else 0)
                owners = soft[layer][near]
                if owners is not None and (len(owners) > 1 or net not in owners):
                    if not crossing:
                        continue
                    price += CROSS_COST + self.history[layer * CELLS + near]
                if direction is not None and direction != (dx, dy):
                    price += TURN_COST
                self._offer(best, came, queue, key, layer * CELLS + near, cost + price, (dx, dy),
                            guess(column + dx, row + dy))
            if self._via_fits(cell, net, crossing):
                price = VIA_COST
                if self._others(self.soft[1 - layer, WIDE], cell, net) or self._others(self.soft[layer, WIDE], cell, net):
                    price += CROSS_COST + self.history[cell]
                self._offer(best, came, queue, key, (1 - layer) * CELLS + cell, cost + price, None, guess(column, row))
        return None

    @staticmethod
    def _offer(best, came, queue, origin, key, cost, direction, guess):
        if cost < best.get(key, 1 << 60):
            best[key] = cost
            came[key] = (origin, direction)
            heappush(queue, (cost + guess, cost, key))

    @staticmethod
    def _way(came, key):
        way = []
        while key != -1:
            way.append(divmod(key, CELLS))
            key = came[key][0]
        return way[::-1]

    # nets

    def _pad_cells(self, pad):
        x, y, shape, layers = pad
        cells = cells_within(shape, -60)
        if not cells:
            cells = [round(y / GRID) * COLUMNS + round(x / GRID)]
        nearest = sorted(cells, key=lambda cell: (abs(place(cell)[0] - x) + abs(place(cell)[1] - y), cell))
        return {(layer, cell) for layer in layers for cell in nearest[:9]}

    def _append(self, route, way, width):
        """Adds a way as straight segments and vias."""
        corners = [way[0]]
        for i in range(1, len(way) - 1):
            (l0, c0), (l1, c1), (l2, c2) = way[i - 1], way[i], way[i + 1]
            if l0 != l1 or l1 != l2 or c1 - c0 != c2 - c1:
                corners.append(way[i])
        corners.append(way[-1])
        for (l0, c0), (l1, c1) in zip(corners, corners[1:]):
            if l0 != l1:
                route.vias.append(place(c0))
            elif c0 != c1:
                route.segments.append((l0, *place(c0), *place(c1), width))
        route.cells.update(way)

    def _join_centre(self, route, pad, end, width):
        x, y, _, _ = pad
        if place(end[1]) != (x, y):
            x1, y1, x2, y2 = bounds(pad[2])
            route.segments.append((end[0], *place(end[1]), x, y, min(width, x2 - x1, y2 - y1)))

    def connect(self, net, crossing):
        """Routes all pads of a net. Returns the route, or None."""
        route = Route()
        pads = list(self.pads[net])
        joined = [pads.pop(0)]
        starts = self._pad_cells(joined[0])
        first = True
        widths = [WIDE, NARROW] if net in POWER else [NARROW]
        while pads:
            pads.sort(key=lambda pad: (min(abs(pad[0] - j[0]) + abs(pad[1] - j[1]) for j in joined), pad[:2]))
            pad = pads.pop(0)
            goals = self._pad_cells(pad)
            for width in widths:
                way = self.search(net, starts | route.cells, goals, width, crossing and width == NARROW)
                if way:
                    break
            if not way:
                return None
            if first or way[0] not in route.cells:
                source = next((j for j in joined if way[0] in self._pad_cells(j)), None)
                if source:
                    self._join_centre(route, source, way[0], width)
            self._append(route, way, width)
            self._join_centre(route, pad, way[-1], width)
            starts |= goals
            joined.append(pad)
            first = False
        return route

    def drop_to_plane(self, net):
        """Gives each surface pad of a net a via of its own to the planes."""
        route = Route()
        for pad in self.pads[net]:
            if len(pad[3]) == 2:
                continue

            def at_via(layer, cell):
                near = any(abs(place(cell)[0] - x) + abs(place(cell)[1] - y) < 900 for x, y in route.vias)
                return layer == pad[3][0] and not near and self._via_fits(cell, net, False)

            way = self.search(net, self._pad_cells(pad), at_via, NARROW, False)
            if not way:
                raise RuntimeError(f"{net}: no place for a via near {pad[:2]}")
            self._append(route, way, NARROW)
            self._join_centre(route, pad, way[0], NARROW)
            route.vias.append(place(way[-1][1]))
        return route

    def stitch(self, net, pitch):
        """Vias all over the board, wherever there is room, that tie the planes together."""
        route = Route()
        for y in range(pitch // 2, HEIGHT, pitch):
            for x in range(pitch // 2, WIDTH, pitch):
                cell = y // GRID * COLUMNS + x // GRID
                if self._via_fits(cell, net, False):
                    route.vias.append(place(cell))
        return route

    def bridge(self, net, starts, goals, log):
        """Lays a narrow track between two lists of vias, and lays again what it has to cross."""
        def cells(vias):
            return {(layer, round(y / GRID) * COLUMNS + round(x / GRID)) for x, y in vias for layer in (0, 1)}

        way = self.search(net, cells(starts), cells(goals), NARROW, True)
        if not way:
            raise RuntimeError(f"no bridge for {net} from {starts[0]}")
        route = Route()
        self._append(route, way, NARROW)
        crossed = sorted(self.conflicts(net, route))
        for other in crossed:
            log(f"the bridge of {net} takes up {other}")
            self.take_up(other)
        self.fix(net, route)
        self.run(crossed, log)
        return route

    def conflicts(self, net, route):
        """The nets whose tracks a route crosses."""
        found = set()
        for layer, shape in self._stamps(route):
            margin = CLEARANCE
            for cell in cells_within(shape, margin + NARROW // 2 - 1):
                owners = self.soft[layer, NARROW].owners[cell]
                if owners:
                    found |= {owner for owner in owners if owner != net and self._too_near(owner, layer, shape)}
        return found

    def _too_near(self, owner, layer, shape):
        from shapes import gap
        return any(other_layer == layer and gap(shape, other) < CLEARANCE - 30
                   for other_layer, other in self._stamps(self.routes[owner]))

    def run(self, nets, log):
        """Routes the nets, taking up and laying again what is in the way."""
        waiting = list(nets)
        rounds = 0
        while waiting:
            rounds += 1
            if rounds > 1500:
                raise RuntimeError(f"no way found for {waiting}")
            net = waiting.pop(0)
            route = self.connect(net, False) or self.connect(net, True)
            if route is None:
                raise RuntimeError(f"{net} cannot be joined at all")
            for other in sorted(self.conflicts(net, route)):
                for layer, shape in self._stamps(self.routes[other]):
                    for cell in cells_within(shape, 100):
                        self.history[layer * CELLS + cell] += 40
                self.take_up(other)
                waiting.append(other)
                log(f"{net} takes up {other}")
            self.lay(net, route)
