"""Writes a finished board as a .kicad_pcb file, and its net classes as a .kicad_pro file."""

import json
from uuid import UUID, uuid5

from design import CORNER, HEIGHT, POWER, USB, WIDTH
from footprints import LIBRARY
from router import VIA, VIA_DRILL
from shapes import turned
from zones import joined

NAMESPACE = UUID("6f0c1c35-6a0a-4a55-9d5c-0e4f6d1f7a11")
ORIGIN = (100_000, 60_000)  # where the board lies on the sheet


def mm(um):
    """Micrometres as the file has them: millimetres with no superfluous zero."""
    text = f"{um / 1000:.6f}".rstrip("0").rstrip(".")
    return "0" if text == "-0" else text


def at(x, y):
    return f"{mm(x + ORIGIN[0])} {mm(y + ORIGIN[1])}"


def identifier(*parts):
    return f"(tstamp {uuid5(NAMESPACE, '/'.join(map(str, parts)))})"


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


class Writer:
    def __init__(self, board):
        self.board = board
        self.design = board.design
        self.numbers = {net: i for i, net in enumerate(self.design.nets(), 1)}
        self.lines = []

    def text(self):
        self.header()
        for part in self.design.parts:
            self.footprint(part)
        self.drawings()
        self.copper()
        self.lines.append(")")
        return "\n".join(self.lines) + "\n"

    def add(self, depth, line):
        self.lines.append("  " * depth + line)

    def header(self):
        self.add(0, "(kicad_pcb (version 20211014) (generator pcbnew)")
        self.add(1, "(general (thickness 1.6))")
        self.add(1, '(paper "A4")')
        self.add(1, f'(title_block (title "Interface node") (date "2024-05-17") (rev "{self.design.revision}"))')
        self.add(1, "(layers")
        numbers = {"F.Cu": 0, "B.Cu": 31, "In1.Cu": 1, "In2.Cu": 2}
        for name, kind, user in self.design.copper:
            self.add(2, f'({numbers[name]} "{name}" {kind}{" " + quoted(user) if user else ""})')
        order = ["B.Adhes", "F.Adhes", "B.Paste", "F.Paste", "B.SilkS", "F.SilkS", "B.Mask", "F.Mask", "Dwgs.User",
                 "Cmts.User", "Eco1.User", "Eco2.User", "Edge.Cuts", "Margin", "B.CrtYd", "F.CrtYd", "B.Fab", "F.Fab",
                 "User.1"]
        for name, user in self.design.technical:
            self.add(2, f'({32 + order.index(name)} "{name}" user{" " + quoted(user) if user else ""})')
        self.add(1, ")")
        self.add(1, "(setup (pad_to_mask_clearance 0.05) (aux_axis_origin " + at(0, HEIGHT) + "))")
        self.add(1, '(net 0 "")')
        for net, number in self.numbers.items():
            self.add(1, f"(net {number} {quoted(net)})")

    def footprint(self, part):
        library = LIBRARY[part.footprint]
        side = "B" if part.back else "F"
        self.add(1, f'(footprint {quoted(library.name)} (layer "{side}.Cu")')
        self.add(2, f"(tedit 5F68FEEE) {identifier(part.key)}")
        self.add(2, f"(at {at(part.x, part.y)}{f' {part.rotation}' if part.rotation else ''})")
        self.add(2, f"(attr {library.attributes})")
        mirror = " (justify mirror)" if part.back else ""
        hidden = " hide" if part.footprint in ("HOLE", "FID", "MARK") else ""
        height = library.yard[0 if part.rotation % 180 else 1]
        for kind, text, y, layer in (("reference", part.reference, -height - 300, "SilkS"),
                                     ("value", part.value, height + 300, "Fab")):
            x, y = turned(0, y, 360 - part.rotation)
            self.add(2, f'(fp_text {kind} {quoted(text)} (at {mm(x)} {mm(y)}) (layer "{side}.{layer}"){hidden}')
            self.add(3, f"(effects (font (size 0.7 0.7) (thickness 0.1)){mirror})")
            self.add(3, identifier(part.key, kind))
            self.add(2, ")")
        self.footprint_lines(part, library, side)
        for i, pad in enumerate(library.pads):
            self.pad(part, pad, i, side)
        self.add(1, ")")

    def footprint_lines(self, part, library, side):
        flip = -1 if part.back else 1

        def line(kind, i, a, b, layer, width):
            self.add(2, f'(fp_line (start {mm(a[0])} {mm(a[1] * flip)}) (end {mm(b[0])} {mm(b[1] * flip)}) '
                        f'(layer "{side}.{layer}") (width {width}) {identifier(part.key, kind, i)})')

        for i, (a, b) in enumerate(library.silk):
            line("silk", i, a, b, "SilkS", 0.12)
        for i, (x, y, radius) in enumerate(library.circles):
            self.add(2, f'(fp_circle (center {mm(x)} {mm(y * flip)}) (end {mm(x + radius)} {mm(y * flip)}) '
                        f'(layer "{side}.SilkS") (width 0.12) (fill none) {identifier(part.key, "circle", i)})')
        for kind, (w, h), layer, width in (("fab", library.body, "Fab", 0.1), ("yard", library.yard, "CrtYd", 0.05)):
            corners = [(-w, -h), (w, -h), (w, h), (-w, h)]
            for i in range(4):
                line(kind, i, corners[i], corners[(i + 1) % 4], layer, width)

    def pad(self, part, pad, i, side):
        y = -pad.y if part.back else pad.y
        angle = f" {part.rotation}" if part.rotation else ""
        layers = f'"{side}.Cu" "{side}.Paste" "{side}.Mask"' if pad.kind == "smd" else '"*.Cu" "*.Mask"'
        if part.footprint in ("TP", "FID"):
            layers = f'"{side}.Cu" "{side}.Mask"'
        words = [f'(pad {quoted(pad.number)} {pad.kind} {pad.shape} (at {mm(pad.x)} {mm(y)}{angle})',
                 f"(size {mm(pad.w)} {mm(pad.h)})"]
        if pad.drill:
            slot = pad.shape == "oval" and pad.w != pad.h
            size = f"oval {mm(pad.drill)} {mm(pad.drill + pad.h - pad.w)}" if slot else mm(pad.drill)
            words.append(f"(drill {size})")
        words.append(f"(layers {layers})")
        if pad.shape == "roundrect":
            words.append("(roundrect_rratio 0.25)")
        net = part.nets.get(pad.number)
        if net:
            words.append(f"(net {self.numbers[net]} {quoted(net)})")
        self.add(2, " ".join(words) + f" {identifier(part.key, 'pad', i)})")

    def drawings(self):
        w, h, r = WIDTH, HEIGHT, CORNER
        lines = [((r, 0), (w - r, 0)), ((w, r), (w, h - r)), ((w - r, h), (r, h)), ((0, h - r), (0, r))]
        k = r * (1 - 0.5 ** 0.5)
        arcs = [((w - r, 0), (w - k, k), (w, r)), ((w, h - r), (w - k, h - k), (w - r, h)),
                ((r, h), (k, h - k), (0, h - r)), ((0, r), (k, k), (r, 0))]
        for i, (a, b) in enumerate(lines):
            self.add(1, f'(gr_line (start {at(*a)}) (end {at(*b)}) (layer "Edge.Cuts") (width 0.1) '
                        f'{identifier("edge", i)})')
        for i, (a, b, c) in enumerate(arcs):
            self.add(1, f'(gr_arc (start {at(*a)}) (mid {at(*b)}) (end {at(*c)}) (layer "Edge.Cuts") (width 0.1) '
                        f'{identifier("corner", i)})')
        title = f"INTERFACE NODE  REV {self.design.revision}"
        self.add(1, f'(gr_text {quoted(title)} (at {at(20000, 58800)}) (layer "F.SilkS") {identifier("title")}')
        self.add(2, "(effects (font (size 1.2 1.2) (thickness 0.2)))")
        self.add(1, ")")

    def copper(self):
        for i, (net, layer, x1, y1, x2, y2, width) in enumerate(self.board.segments):
            self.add(1, f'(segment (start {at(x1, y1)}) (end {at(x2, y2)}) (width {mm(width)}) (layer "{layer}") '
                        f'(net {self.numbers[net]}) {identifier("segment", net, x1, y1, x2, y2, i)})')
        for i, (net, layer, *points, width) in enumerate(self.board.arcs):
            start, middle, end = (at(x / 1000, y / 1000) for x, y in points)
            self.add(1, f'(arc (start {start}) (mid {middle}) (end {end}) (width {mm(width)}) (layer "{layer}") '
                        f'(net {self.numbers[net]}) {identifier("arc", net, i)})')
        for net, x, y in self.board.vias:
            self.add(1, f'(via (at {at(x, y)}) (size {mm(VIA)}) (drill {mm(VIA_DRILL)}) (layers "F.Cu" "B.Cu") '
                        f'(net {self.numbers[net]}) {identifier("via", net, x, y)})')
        for zone in self.board.zones:
            self.zone(*zone)

    def zone(self, net, layer, outline, priority, islands):
        self.add(1, f'(zone (net {self.numbers[net]}) (net_name {quoted(net)}) (layer "{layer}") '
                    f'{identifier("zone", net, layer)} (hatch edge 0.508)')
        if priority:
            self.add(2, f"(priority {priority})")
        self.add(2, "(connect_pads (clearance 0.25))")
        self.add(2, "(min_thickness 0.25) (filled_areas_thickness no)")
        self.add(2, "(fill yes (thermal_gap 0.25) (thermal_bridge_width 0.5))")
        self.points("polygon", outline, None)
        for outer, holes in islands:
            self.points("filled_polygon", joined(outer, holes), layer)
        self.add(1, ")")

    def points(self, keyword, points, layer):
        self.add(2, f"({keyword}")
        if layer:
            self.add(3, f'(layer "{layer}")')
        self.add(3, "(pts")
        for i in range(0, len(points), 4):
            self.add(4, " ".join(f"(xy {at(x, y)})" for x, y in points[i:i + 4]))
        self.add(3, ")")
        self.add(2, ")")


def project(board, name):
    """The project file: three net classes, and which nets are in them."""

    def net_class(class_name, width, nets):
        return {"bus_width": 12.0, "clearance": 0.14, "diff_pair_gap": 0.2, "diff_pair_via_gap": 0.25,
                "diff_pair_width": 0.25, "line_style": 0, "microvia_diameter": 0.3, "microvia_drill": 0.1,
                "name": class_name, "nets": nets, "pcb_color": "rgba(0, 0, 0, 0.000)",
                "schematic_color": "rgba(0, 0, 0, 0.000)", "track_width": width, "via_diameter": VIA / 1000,
                "via_drill": VIA_DRILL / 1000, "wire_width": 6.0}

    nets = board.design.nets()
    classes = [net_class("Default", 0.25, []),
               net_class("Power", 0.6, sorted(net for net in nets if net in POWER or net == "GND")),
               net_class("USB", 0.25, sorted(net for net in nets if net in USB))]
    content = {"board": {"design_settings": {"rules": {"min_clearance": 0.14}}}, "meta": {"filename": name, "version": 1},
               "net_settings": {"classes": classes, "meta": {"version": 2}, "net_colors": None}}
    return json.dumps(content, indent=2, sort_keys=True, ensure_ascii=False) + "\n"
