"""Footprints of the sample design. All lengths are whole micrometres, y runs down, the origin is the part's own."""

from dataclasses import dataclass, field


@dataclass(frozen=True)
class Pad:
    number: str
    kind: str  # smd, thru_hole, np_thru_hole
    shape: str  # rect, roundrect, circle, oval
    x: int
    y: int
    w: int
    h: int
    drill: int = 0


@dataclass
class Footprint:
    name: str
    attributes: str
    pads: list = field(default_factory=list)
    silk: list = field(default_factory=list)  # ((x, y), (x, y)) lines
    circles: list = field(default_factory=list)  # (x, y, radius) on the silkscreen
    body: tuple = (0, 0, 0, 0)  # half width and half height of the part, for the fabrication layer
    yard: tuple = (0, 0)  # half width and half height that no other part may enter


def _frame(w, h):
    return [((-w, -h), (w, -h)), ((w, -h), (w, h)), ((w, h), (-w, h)), ((-w, h), (-w, -h))]


def chip(library, size):
    """A two-terminal chip part: resistor, capacitor, ferrite, fuse or LED."""
    pitch, w, h, body_w, body_h = {
        "0603_1608Metric": (800, 800, 950, 800, 400),
        "0805_2012Metric": (950, 1000, 1450, 1000, 625),
        "1206_3216Metric": (1475, 1150, 1750, 1600, 800),
    }[size]
    part = Footprint(f"{library}_{size}", "smd")
    part.pads = [Pad("1", "smd", "roundrect", -pitch, 0, w, h), Pad("2", "smd", "roundrect", pitch, 0, w, h)]
    gap = pitch - w // 2 - 100
    part.silk = [((-gap, -h // 2), (gap, -h // 2)), ((-gap, h // 2), (gap, h // 2))] if gap > 50 else []
    part.body = (body_w, body_h)
    part.yard = (pitch + w // 2 + 250, h // 2 + 250)
    if library.startswith("LED"):
        edge = pitch + w // 2 + 150
        part.silk = [((-edge, -h // 2 - 100), (-edge, h // 2 + 100)), ((-edge, -h // 2 - 100), (pitch, -h // 2 - 100)),
                     ((-edge, h // 2 + 100), (pitch, h // 2 + 100))]
    return part


def two_terminal(name, pitch, w, h, body_w, body_h):
    """A larger two-terminal part such as a diode in SMA or a power inductor; pad 1 is the cathode."""
    part = Footprint(name, "smd")
    part.pads = [Pad("1", "smd", "rect", -pitch, 0, w, h), Pad("2", "smd", "rect", pitch, 0, w, h)]
    edge = pitch + w // 2 + 150
    part.silk = [((-edge, -body_h - 120), (body_w, -body_h - 120)), ((-edge, body_h + 120), (body_w, body_h + 120)),
                 ((-edge, -body_h - 120), (-edge, body_h + 120))]
    part.body = (body_w, body_h)
    part.yard = (max(edge, body_w) + 150, max(h // 2, body_h) + 300)
    return part


def dual_row(name, count, pitch, row, w, h, body_w, body_h):
    """Pins down the left side and up the right one: SOIC, SOT-23-6."""
    part = Footprint(name, "smd")
    half = count // 2
    for i in range(half):
        y = round((i - (half - 1) / 2) * pitch)
        part.pads.append(Pad(str(i + 1), "smd", "roundrect", -row, y, w, h))
    for i in range(half):
        y = round(((half - 1) / 2 - i) * pitch)
        part.pads.append(Pad(str(half + i + 1), "smd", "roundrect", row, y, w, h))
    inner = min(body_w, row - w // 2 - 150)
    part.silk = [((-inner, -body_h - 110), (inner, -body_h - 110)), ((-inner, body_h + 110), (inner, body_h + 110))]
    part.circles = [(-row, -round((half - 1) / 2 * pitch) - h // 2 - 350, 120)]
    part.body = (body_w, body_h)
    part.yard = (row + w // 2 + 250, max(body_h, round((half - 1) / 2 * pitch) + h // 2) + 250)
    return part


def sot23():
    part = Footprint("Package_TO_SOT_SMD:SOT-23", "smd")
    part.pads = [Pad("1", "smd", "roundrect", -940, -950, 1475, 600), Pad("2", "smd", "roundrect", -940, 950, 1475, 600),
                 Pad("3", "smd", "roundrect", 940, 0, 1475, 600)]
    part.silk = [((0, -1560), (650, -1560)), ((0, 1560), (650, 1560))]
    part.body = (650, 1450)
    part.yard = (1930, 1700)
    return part


def sot223():
    part = Footprint("Package_TO_SOT_SMD:SOT-223-3_TabPin2", "smd")
    part.pads = [Pad("1", "smd", "rect", -3150, -2300, 2000, 1500), Pad("2", "smd", "rect", -3150, 0, 2000, 1500),
                 Pad("3", "smd", "rect", -3150, 2300, 2000, 1500), Pad("2", "smd", "rect", 3150, 0, 2000, 3800)]
    part.silk = [((-1850, -3410), (1910, -3410)), ((-1850, 3410), (1910, 3410)), ((1910, -3410), (1910, -2150)),
                 ((1910, 3410), (1910, 2150))]
    part.body = (1750, 3250)
    part.yard = (4400, 3600)
    return part


def tqfp48():
    part = Footprint("Package_QFP:LQFP-48_7x7mm_P0.5mm", "smd")
    for i in range(12):
        offset = i * 500 - 2750
        part.pads.append(Pad(str(1 + i), "smd", "roundrect", -4250, offset, 1500, 300))
        part.pads.append(Pad(str(13 + i), "smd", "roundrect", offset, 4250, 300, 1500))
        part.pads.append(Pad(str(25 + i), "smd", "roundrect", 4250, -offset, 1500, 300))
        part.pads.append(Pad(str(37 + i), "smd", "roundrect", -offset, -4250, 300, 1500))
    part.pads.sort(key=lambda pad: int(pad.number))
    for sx in (-1, 1):
        for sy in (-1, 1):
            part.silk += [((sx * 3610, sy * 3610), (sx * 3160, sy * 3610)), ((sx * 3610, sy * 3610), (sx * 3610, sy * 3160))]
    part.circles = [(-4600, -3400, 150)]
    part.body = (3500, 3500)
    part.yard = (5250, 5250)
    return part


def header(columns, rows):
    """Pin header of 2.54 mm, pins numbered across the columns, row by row."""
    part = Footprint(f"Connector_PinHeader_2.54mm:PinHeader_{columns}x{rows:02d}_P2.54mm_Vertical", "through_hole")
    number = 1
    for row in range(rows):
        for column in range(columns):
            x = round((column - (columns - 1) / 2) * 2540)
            y = round((row - (rows - 1) / 2) * 2540)
            part.pads.append(Pad(str(number), "thru_hole", "rect" if number == 1 else "oval", x, y, 1700, 1700, 1000))
            number += 1
    w, h = columns * 1270 + 60, rows * 1270 + 60
    part.silk = _frame(w, h)
    part.body = (w - 60, h - 60)
    part.yard = (w + 250, h + 250)
    return part


def terminal(count):
    part = Footprint(f"TerminalBlock:TerminalBlock_1x{count:02d}_P5.08mm_Horizontal", "through_hole")
    for i in range(count):
        x = round((i - (count - 1) / 2) * 5080)
        part.pads.append(Pad(str(i + 1), "thru_hole", "rect" if i == 0 else "circle", x, 0, 2600, 2600, 1300))
    w, h = count * 2540 + 100, 4600
    part.silk = _frame(w, h) + [((-w, 2900), (w, 2900))]
    part.body = (w - 100, h - 100)
    part.yard = (w + 250, h + 250)
    return part


def usb_c():
    part = Footprint("Connector_USB:USB_C_Receptacle_16P_TopMount", "smd")
    places = [("A1B12", -3250, 600), ("A4B9", -2450, 600), ("B8", -1750, 300), ("A5", -1250, 300), ("B7", -750, 300),
              ("A6", -250, 300), ("A7", 250, 300), ("B6", 750, 300), ("A8", 1250, 300), ("B5", 1750, 300),
              ("B4A9", 2450, 600), ("B1A12", 3250, 600)]
    part.pads = [Pad(number, "smd", "rect", x, -4045, w, 1450) for number, x, w in places]
    for x in (-4320, 4320):
        part.pads.append(Pad("SH", "thru_hole", "oval", x, -3130, 1000, 2100, 600))
        part.pads.append(Pad("SH", "thru_hole", "oval", x, 1050, 1000, 1800, 600))
    part.pads += [Pad("", "np_thru_hole", "circle", x, -2600, 650, 650, 650) for x in (-2890, 2890)]
    part.silk = [((-4700, 2000), (-4700, 3900)), ((-4700, 3900), (4700, 3900)), ((4700, 3900), (4700, 2000)),
                 ((-4700, -1900), (-4700, 0)), ((4700, -1900), (4700, 0))]
    part.body = (4470, 3650)
    part.yard = (5100, 5000)
    return part


def crystal():
    part = Footprint("Crystal:Crystal_SMD_3225-4Pin_3.2x2.5mm", "smd")
    for number, x, y in (("1", -1, 1), ("2", 1, 1), ("3", 1, -1), ("4", -1, -1)):
        part.pads.append(Pad(number, "smd", "rect", x * 1100, y * 850, 1400, 1200))
    part.silk = [((-2000, -1650), (-2000, 1650)), ((-2000, 1650), (2000, 1650))]
    part.body = (1600, 1250)
    part.yard = (2250, 1900)
    return part


def button():
    part = Footprint("Button_Switch_SMD:SW_SPST_4.5mm", "smd")
    for number, y in (("1", -1850), ("2", 1850)):
        part.pads += [Pad(number, "smd", "rect", x, y, 1100, 750) for x in (-2700, 2700)]
    part.silk = [((-1900, -2300), (1900, -2300)), ((-1900, 2300), (1900, 2300)), ((-2300, -1200), (-2300, 1200)),
                 ((2300, -1200), (2300, 1200))]
    part.circles = [(0, 0, 1200)]
    part.body = (2100, 2100)
    part.yard = (3500, 2550)
    return part


def mounting_hole():
    part = Footprint("MountingHole:MountingHole_3.2mm_M3", "exclude_from_pos_files exclude_from_bom")
    part.pads = [Pad("", "np_thru_hole", "circle", 0, 0, 3200, 3200, 3200)]
    part.circles = [(0, 0, 3000)]
    part.body = (1600, 1600)
    part.yard = (3200, 3200)
    return part


def test_point():
    part = Footprint("TestPoint:TestPoint_Pad_D1.5mm", "exclude_from_pos_files exclude_from_bom")
    part.pads = [Pad("1", "smd", "circle", 0, 0, 1500, 1500)]
    part.circles = [(0, 0, 950)]
    part.body = (750, 750)
    part.yard = (1100, 1100)
    return part


def fiducial():
    part = Footprint("Fiducial:Fiducial_1mm_Mask2mm", "smd exclude_from_pos_files exclude_from_bom")
    part.pads = [Pad("", "smd", "circle", 0, 0, 1000, 1000)]
    part.body = (500, 500)
    part.yard = (1200, 1200)
    return part


def mark(name):
    """A drawing on the silkscreen, without pads: three turning bars in a ring."""
    part = Footprint(f"Symbol:{name}", "board_only exclude_from_pos_files exclude_from_bom")
    part.circles = [(0, 0, 1600)]
    part.silk = [((0, -1200), (1040, 600)), ((1040, 600), (-1040, 600)), ((-1040, 600), (0, -1200))]
    part.body = (1600, 1600)
    part.yard = (1800, 1800)
    return part


LIBRARY = {
    "R0603": chip("Resistor_SMD:R", "0603_1608Metric"),
    "R0805": chip("Resistor_SMD:R", "0805_2012Metric"),
    "C0603": chip("Capacitor_SMD:C", "0603_1608Metric"),
    "C0805": chip("Capacitor_SMD:C", "0805_2012Metric"),
    "C1206": chip("Capacitor_SMD:C", "1206_3216Metric"),
    "FB0805": chip("Inductor_SMD:L", "0805_2012Metric"),
    "F1206": chip("Fuse:Fuse", "1206_3216Metric"),
    "LED0805": chip("LED_SMD:LED", "0805_2012Metric"),
    "SMA": two_terminal("Diode_SMD:D_SMA", 2000, 2500, 1800, 2150, 1300),
    "L6045": two_terminal("Inductor_SMD:L_6.0x6.0mm_H4.5mm", 2350, 1700, 5700, 3000, 3000),
    "SOT23": sot23(),
    "SOT23-6": dual_row("Package_TO_SOT_SMD:SOT-23-6", 6, 950, 1140, 1325, 600, 800, 1450),
    "SOT223": sot223(),
    "SOIC8": dual_row("Package_SO:SOIC-8_3.9x4.9mm_P1.27mm", 8, 1270, 2475, 1950, 600, 1950, 2450),
    "TQFP48": tqfp48(),
    "HDR2x5": header(2, 5),
    "HDR1x4": header(1, 4),
    "HDR1x6": header(1, 6),
    "HDR1x10": header(1, 10),
    "TERM2": terminal(2),
    "TERM3": terminal(3),
    "USBC": usb_c(),
    "XTAL": crystal(),
    "SW": button(),
    "HOLE": mounting_hole(),
    "TP": test_point(),
    "FID": fiducial(),
    "MARK": mark("RingMark_3mm"),
}
