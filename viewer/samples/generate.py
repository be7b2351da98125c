#!/usr/bin/env python3
"""Makes the two sample boards beside this script: node-a and node-b, revisions A and B of one small design.

    generate.py [FOLDER]

The same files come out every time. Takes about a minute; with a fault in the copper it writes nothing.
"""

import sys
from pathlib import Path

from copper import Board
from design import HEIGHT, WIDTH, revise, revision_a
from router import VIA, Router
from shapes import placed_pads
from writer import Writer, project

ROUNDED = {"/rs485/A", "/rs485/B", "/rs485/RO", "/rs485/DI"}
WHOLE = [(500, 500), (WIDTH - 500, 500), (WIDTH - 500, HEIGHT - 500), (500, HEIGHT - 500)]
OUTPUT_A = [(34000, 51600), (43300, 51600), (43300, 60200), (34000, 60200)]
OUTPUT_B = [(34000, 50000), (41300, 50000), (43300, 52000), (43300, 60200), (34000, 60200)]


def log(line):
    print(line, file=sys.stderr)


def by_length(router, nets):
    """Short nets first: they have the least choice."""

    def length(net):
        xs, ys = [pad[0] for pad in router.pads[net]], [pad[1] for pad in router.pads[net]]
        return max(xs) - min(xs) + max(ys) - min(ys), net

    return sorted((net for net in nets if len(router.pads[net]) > 1), key=length)


def route_a():
    design = revision_a()
    router = Router(design)
    plane = router.drop_to_plane("GND")
    router.fix("GND", plane)
    router.run(by_length(router, [net for net in design.nets() if net != "GND"]), log)
    return finish(design, router, plane, 12000), router.routes


def pad_places(design):
    """Where each net has its pads, to see which nets a revision touches."""
    places = {}
    for part in design.parts:
        for pad, x, y, w, h in placed_pads(part):
            if pad.number in part.nets:
                places.setdefault(part.nets[pad.number], set()).add((x, y, w, h, part.back))
    return places


def route_b(design_a, routes_a):
    """Keeps every track of revision A whose net has its pads where they were."""
    before = pad_places(design_a)
    design = revise(revision_a())
    after = pad_places(design)
    names = {net.replace("/i2c/S", "/bus/S"): net for net in before}
    router = Router(design)
    plane = router.drop_to_plane("GND")
    router.fix("GND", plane)
    again = []
    for net in design.nets():
        old = names.get(net)
        if net == "GND" or len(router.pads[net]) < 2:
            continue
        if old in routes_a and before[old] == after[net] and not hits_fixed(router, net, routes_a[old]):
            router.lay(net, routes_a[old])
        else:
            again.append(net)
    log("routed again for revision B: " + ", ".join(again))
    router.run(by_length(router, again), log)
    return finish(design, router, plane, 8000)


def hits_fixed(router, net, route):
    """Whether a track of revision A is in the way of something that revision B has put down."""
    for layer, x1, y1, x2, y2, _ in route.segments:
        steps = max(abs(x2 - x1), abs(y2 - y1)) // 125 + 1
        for i in range(steps + 1):
            x, y = x1 + (x2 - x1) * i / steps, y1 + (y2 - y1) * i / steps
            if router.is_blocked(layer, x, y, net):
                return True
    return any(router.is_blocked(layer, x, y, net) for x, y in route.vias for layer in (0, 1))


def poured(design, routes):
    board = Board(design)
    for net in design.nets():
        for route in routes.get(net, []):
            board.add_route(net, route, design.widths)
    board.round_corners(ROUNDED)
    output = OUTPUT_A if design.revision == "A" else OUTPUT_B
    board.add_zone("+5V", "F.Cu", output, 1)
    board.add_zone("GND", "F.Cu", WHOLE, 0, [output])
    if design.revision == "B":
        board.add_zone("GND", "In1.Cu", WHOLE, 0)
        board.add_zone("+3V3", "In2.Cu", WHOLE, 0)
    board.add_zone("GND", "B.Cu", WHOLE, 0)
    return board


def vias_of(piece):
    return [(int(shape[1]), int(shape[2])) for layers, shape in piece
            if shape[0] == "bar" and shape[1:3] == shape[3:5] and shape[5] == VIA / 2]


def finish(design, router, plane, pitch):
    """Pours the zones, and bridges what of the ground they leave apart."""
    ground = [plane, router.stitch("GND", pitch)]
    router.fix("GND", ground[1])
    while True:
        board = poured(design, {"GND": ground, **{net: [route] for net, route in router.routes.items()}})
        pieces = board.pieces("GND")
        if len(pieces) == 1:
            return board
        log(f"ground is in {len(pieces)} pieces")
        ground.append(router.bridge("GND", vias_of(pieces[-1]), vias_of(pieces[0]), log))


def main():
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).parent
    board_a, routes_a = route_a()
    boards = {"node-a": board_a, "node-b": route_b(board_a.design, routes_a)}
    faults = [f"{name}: {fault}" for name, board in boards.items() for fault in board.faults()]
    if faults:
        sys.exit("\n".join(faults))
    for name, board in boards.items():
        (folder / f"{name}.kicad_pcb").write_text(Writer(board).text(), encoding="utf-8")
        (folder / f"{name}.kicad_pro").write_text(project(board, f"{name}.kicad_pro"), encoding="utf-8")


if __name__ == "__main__":
    main()
