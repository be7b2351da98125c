"""The sample design: an interface node with a controller, USB, RS-485, analogue inputs and two supplies.

Revision B is revision A with the changes that `revise` lists, so that a comparison has something of each kind to find.
"""

from dataclasses import dataclass, field

from footprints import LIBRARY

WIDTH, HEIGHT, CORNER = 96000, 66000, 3000  # the board, micrometres
POWER = {"+5V", "+3V3", "+3V3A", "/power/VIN_RAW", "/power/VIN_F", "/power/VIN", "/power/SW", "VBUS", "/usb/VBUS_F",
         "/io/OUT1", "/io/OUT2"}
USB = {"USB_D+", "USB_D-", "/usb/USB_D+", "/usb/USB_D-"}


@dataclass
class Part:
    reference: str
    footprint: str
    value: str
    x: int
    y: int
    rotation: int
    nets: dict  # pad number to net
    back: bool = False
    key: str = ""  # makes the unique ids of parts that share a reference


@dataclass
class Design:
    revision: str
    parts: list
    copper: list  # (name, type, user name) from front to back
    technical: list
    widths: dict = field(default_factory=dict)  # of nets, where they differ from their class

    def part(self, reference):
        return next(part for part in self.parts if part.reference == reference)

    def nets(self):
        names = {}
        for part in self.parts:
            for net in part.nets.values():
                names.setdefault(net)
        return list(names)


def _pads(text):
    """ "1:GND 2:+5V" as a dictionary. """
    return dict(pair.split(":", 1) for pair in text.split())


def _mcu():
    nets = {}
    left = ["+3V3", "/usb/USB_D-", "/usb/USB_D+", "/power/PGOOD", "/mcu/OSC_IN", "/mcu/OSC_OUT", "~{RESET}", "GND", "+3V3A",
            "/io/BTN1", "/power/EN_5V", "/io/SPARE1"]
    bottom = ["/analog/AIN1", "/analog/AIN2", "/analog/AIN3", "/analog/AIN4", "/analog/AIN5{slash}REF", "/rs485/RO",
              "/rs485/DE", "/rs485/DI", "unconnected-(U1-Pad21)", "unconnected-(U1-Pad22)", "GND", "+3V3"]
    right = ["/io/GPIO7", "/io/GPIO6", "/io/GPIO5", "/io/GPIO4", "/io/GPIO3", "/io/GPIO2", "/io/GPIO1", "/io/GPIO0",
             "/io/PWM2", "/io/PWM1", "GND", "+3V3"]
    top = ["/i2c/SCL", "/i2c/SDA", "/i2c/~{ALERT}", "/i2c/WP", "/mcu/SWO", "/mcu/SWCLK", "/mcu/SWDIO", "/mcu/BOOT0",
           "/io/groups/LED1", "/io/groups/LED2", "GND", "+3V3"]
    for number, net in enumerate(left + bottom + right + top, 1):
        nets[str(number)] = net
    return nets


# reference, footprint, value, x and y in millimetres, rotation, pads
_PARTS = [
    # supply: terminal, fuse, surge and reverse protection, step-down, linear regulator
    ("J6", "TERM2", "12V", 6, 46.5, 270, "1:/power/VIN_RAW 2:GND"),
    ("F1", "F1206", "2A", 14.5, 42, 0, "1:/power/VIN_RAW 2:/power/VIN_F"),
    ("D1", "SMA", "SMAJ24A", 15.5, 47.5, 90, "1:/power/VIN_F 2:GND"),
    ("D2", "SMA", "SS34", 21.5, 42, 180, "1:/power/VIN 2:/power/VIN_F"),
    ("C1", "C1206", "10u", 20, 47.5, 90, "1:/power/VIN 2:GND"),
    ("C2", "C0603", "100n", 23.5, 46.5, 90, "1:/power/VIN 2:GND"),
    ("R3", "R0603", "100k", 26.5, 46.5, 90, "1:/power/VIN 2:/power/EN_5V"),
    ("U3", "SOT23-6", "TPS560430", 25.5, 51.5, 0,
     "1:Net-(C3-Pad1) 2:GND 3:Net-(R1-Pad2) 4:/power/EN_5V 5:/power/VIN 6:/power/SW"),
    ("C3", "C0603", "100n", 25.5, 55.2, 180, "1:Net-(C3-Pad1) 2:/power/SW"),
    ("L1", "L6045", "10uH", 32.5, 55, 0, "1:/power/SW 2:+5V"),
    ("C4", "C1206", "22u", 39, 57, 90, "1:+5V 2:GND"),
    ("C5", "C1206", "22u", 42.2, 57, 90, "1:+5V 2:GND"),
    ("R1", "R0603", "52k3", 20.8, 53, 180, "1:+5V 2:Net-(R1-Pad2)"),
    ("R2", "R0603", "10k", 20.8, 55.2, 180, "1:GND 2:Net-(R1-Pad2)"),
    ("R4", "R0603", "10k", 33, 46.5, 90, "1:+5V 2:/power/PGOOD"),
    ("R5", "R0603", "15k", 30, 46.5, 270, "1:/power/PGOOD 2:GND"),
    ("U2", "SOT223", "AMS1117-3.3", 19.5, 32.5, 0, "1:GND 2:+3V3 3:+5V"),
    ("C6", "C0805", "10u", 13, 35, 90, "1:+5V 2:GND"),
    ("C7", "C0805", "10u", 26, 31.5, 90, "1:+3V3 2:GND"),
    ("C8", "C0603", "100n", 28.5, 31.5, 90, "1:+3V3 2:GND"),
    # USB
    ("J1", "USBC", "USB-C", 4.6, 20, 270,
     "A1B12:GND A4B9:VBUS B8:unconnected-(J1-PadB8) A5:Net-(J1-PadA5) B7:USB_D- A6:USB_D+ A7:USB_D- B6:USB_D+ "
     "A8:unconnected-(J1-PadA8) B5:Net-(J1-PadB5) B4A9:VBUS B1A12:GND SH:GND"),
    ("R7", "R0603", "5k1", 12.2, 26, 0, "1:Net-(J1-PadB5) 2:GND"),
    ("R8", "R0603", "5k1", 12.2, 13.2, 0, "1:Net-(J1-PadA5) 2:GND"),
    ("D10", "SOT23-6", "USBLC6", 16.8, 20, 180, "1:USB_D- 2:GND 3:USB_D+ 4:USB_D+ 5:VBUS 6:USB_D-"),
    ("F2", "F1206", "500mA", 16.5, 15.5, 0, "1:VBUS 2:/usb/VBUS_F"),
    ("D9", "SMA", "SS14", 23.5, 15.5, 180, "1:+5V 2:/usb/VBUS_F"),
    ("R9", "R0603", "22", 22.5, 20.8, 0, "1:USB_D+ 2:/usb/USB_D+"),
    ("R10", "R0603", "22", 22.5, 19, 0, "1:USB_D- 2:/usb/USB_D-"),
    ("C30", "C0805", "10u", 21.5, 24.3, 0, "1:VBUS 2:GND"),
    # controller
    ("U1", "TQFP48", "STM32F103C8", 46, 28, 0, None),
    ("C9", "C0603", "100n", 38.2, 24.3, 90, "1:GND 2:+3V3"),
    ("C10", "C0603", "100n", 52.6, 36.2, 90, "1:+3V3 2:GND"),
    ("C11", "C0603", "100n", 54.5, 22.6, 0, "1:+3V3 2:GND"),
    ("C12", "C0603", "100n", 39.7, 20.8, 0, "1:GND 2:+3V3"),
    ("C13", "C0805", "4u7", 56.8, 36.2, 90, "1:+3V3 2:GND"),
    ("FB1", "FB0805", "600R", 34.3, 39.3, 0, "1:+3V3 2:+3V3A"),
    ("C15", "C0603", "100n", 39.4, 33, 90, "1:+3V3A 2:GND"),
    ("C16", "C0603", "1u", 41.6, 39.3, 0, "1:+3V3A 2:GND"),
    ("Y1", "XTAL", "8MHz", 33.2, 27.3, 90, "1:/mcu/OSC_IN 2:GND 3:/mcu/OSC_OUT 4:GND"),
    ("C17", "C0603", "18p", 33.2, 23.4, 180, "1:/mcu/OSC_IN 2:GND"),
    ("C18", "C0603", "18p", 33.2, 31.2, 180, "1:/mcu/OSC_OUT 2:GND"),
    ("R11", "R0603", "10k", 34.6, 34, 0, "1:+3V3 2:~{RESET}"),
    ("C19", "C0603", "100n", 34.6, 36, 180, "1:~{RESET} 2:GND"),
    ("SW1", "SW", "RESET", 13, 6.3, 0, "1:~{RESET} 2:GND"),
    ("SW2", "SW", "USER", 22.5, 6.3, 0, "1:/io/BTN1 2:GND"),
    ("R13", "R0603", "10k", 28.3, 5, 90, "1:/io/BTN1 2:+3V3"),
    ("C20", "C0603", "100n", 28.3, 9.2, 270, "1:/io/BTN1 2:GND"),
    ("R12", "R0603", "10k", 39.8, 17.2, 180, "1:/mcu/BOOT0 2:GND"),
    ("J2", "HDR2x5", "SWD", 52.5, 8.7, 90,
     "1:+3V3 2:/mcu/SWDIO 3:GND 4:/mcu/SWCLK 5:GND 6:/mcu/SWO 7:unconnected-(J2-Pad7) 8:unconnected-(J2-Pad8) 9:GND "
     "10:~{RESET}"),
    # I2C
    ("J4", "HDR1x4", "I2C", 69, 6, 90, "1:GND 2:+3V3 3:/i2c/SDA 4:/i2c/SCL"),
    ("R14", "R0603", "4k7", 61.5, 12.6, 0, "1:+3V3 2:/i2c/SDA"),
    ("R15", "R0603", "4k7", 61.5, 14.6, 0, "1:+3V3 2:/i2c/SCL"),
    ("R16", "R0603", "10k", 61.5, 16.6, 0, "1:+3V3 2:/i2c/~{ALERT}"),
    ("U5", "SOIC8", "24LC256", 71, 14.5, 0, "1:GND 2:GND 3:GND 4:GND 5:/i2c/SDA 6:/i2c/SCL 7:/i2c/WP 8:+3V3"),
    ("C21", "C0603", "100n", 76.8, 13, 90, "1:GND 2:+3V3"),
    ("U6", "SOIC8", "TMP175", 71, 22.5, 0,
     "1:/i2c/SDA 2:/i2c/SCL 3:/i2c/~{ALERT} 4:GND 5:GND 6:GND 7:+3V3 8:+3V3"),
    ("C22", "C0603", "100n", 76.8, 21, 90, "1:GND 2:+3V3"),
    # RS-485
    ("U4", "SOIC8", "THVD1410", 69, 46.5, 0,
     "1:/rs485/RO 2:/rs485/DE 3:/rs485/DE 4:/rs485/DI 5:GND 6:/rs485/A 7:/rs485/B 8:+3V3"),
    ("C23", "C0603", "100n", 73.8, 42.6, 0, "1:+3V3 2:GND"),
    ("R17", "R0805", "120", 78.5, 46.5, 90, "1:/rs485/A 2:/rs485/B"),
    ("R18", "R0603", "680", 76.8, 52.5, 180, "1:/rs485/A 2:+3V3"),
    ("R19", "R0603", "680", 78, 42.6, 0, "1:/rs485/B 2:GND"),
    ("D11", "SOT23", "SM712", 83.5, 42, 90, "1:/rs485/A 2:/rs485/B 3:GND"),
    ("J5", "TERM3", "RS-485", 90.5, 49, 90, "1:/rs485/A 2:/rs485/B 3:GND"),
    ("R20", "R0603", "10k", 63.3, 42.6, 180, "1:/rs485/DE 2:GND"),
    ("R32", "R0603", "1k", 64.2, 52.5, 180, "1:/rs485/DE 2:Net-(D8-Pad2)"),
    ("D8", "LED0805", "amber", 68.5, 52.5, 180, "1:GND 2:Net-(D8-Pad2)"),
    # analogue inputs
    ("J7", "HDR1x6", "ANALOG", 57.5, 61.5, 90, "1:+3V3A 2:/analog/IN1 3:/analog/IN2 4:/analog/IN3 5:/analog/IN4 6:GND"),
    ("R21", "R0603", "1k", 53.7, 55.6, 90, "1:/analog/IN1 2:/analog/AIN1"),
    ("R22", "R0603", "1k", 56.2, 55.6, 90, "1:/analog/IN2 2:/analog/AIN2"),
    ("R23", "R0603", "1k", 58.8, 55.6, 90, "1:/analog/IN3 2:/analog/AIN3"),
    ("R24", "R0603", "1k", 61.3, 55.6, 90, "1:/analog/IN4 2:/analog/AIN4"),
    ("C24", "C0603", "10n", 53.7, 50.6, 270, "1:GND 2:/analog/AIN1"),
    ("C25", "C0603", "10n", 56.2, 50.6, 270, "1:GND 2:/analog/AIN2"),
    ("C26", "C0603", "10n", 58.8, 50.6, 270, "1:GND 2:/analog/AIN3"),
    ("C27", "C0603", "10n", 61.3, 50.6, 270, "1:GND 2:/analog/AIN4"),
    ("U7", "SOIC8", "MCP6002", 47.5, 47, 0,
     "1:/analog/AIN5{slash}REF 2:/analog/AIN5{slash}REF 3:Net-(C28-Pad1) 4:GND 5:/analog/AIN4 6:/analog/BUF4 "
     "7:/analog/BUF4 8:+3V3A"),
    ("R25", "R0603", "10k", 40.3, 45.2, 0, "1:+3V3A 2:Net-(C28-Pad1)"),
    ("R26", "R0603", "10k", 40.3, 47.2, 180, "1:Net-(C28-Pad1) 2:GND"),
    ("C28", "C0603", "100n", 40.3, 49.2, 180, "1:Net-(C28-Pad1) 2:GND"),
    ("C29", "C0603", "100n", 49, 42.3, 180, "1:+3V3A 2:GND"),
    ("TP1", "TP", "BUF4", 42.3, 62.5, 0, "1:/analog/BUF4"),
    # lamps
    ("D3", "LED0805", "green", 33, 3.5, 0, "1:GND 2:Net-(D3-Pad2)"),
    ("D4", "LED0805", "green", 33, 6.7, 0, "1:GND 2:Net-(D4-Pad2)"),
    ("D5", "LED0805", "blue", 33, 9.9, 0, "1:GND 2:Net-(D5-Pad2)"),
    ("D6", "LED0805", "blue", 33, 13.1, 0, "1:GND 2:Net-(D6-Pad2)"),
    ("R27", "R0603", "1k", 38, 3.5, 180, "1:+5V 2:Net-(D3-Pad2)"),
    ("R28", "R0603", "680", 38, 6.7, 180, "1:+3V3 2:Net-(D4-Pad2)"),
    ("R29", "R0603", "1k", 38, 9.9, 180, "1:/io/groups/LED1 2:Net-(D5-Pad2)"),
    ("R30", "R0603", "1k", 38, 13.1, 180, "1:/io/groups/LED2 2:Net-(D6-Pad2)"),
    # inputs and outputs
    ("J3", "HDR1x10", "GPIO", 92, 24, 0,
     "1:+3V3 2:/io/GPIO0 3:/io/GPIO1 4:/io/GPIO2 5:/io/GPIO3 6:/io/GPIO4 7:/io/GPIO5 8:/io/GPIO6 9:/io/GPIO7 10:GND"),
    ("Q1", "SOT23", "AO3400A", 79.5, 30.5, 0, "1:/io/PWM1 2:GND 3:/io/OUT1"),
    ("Q2", "SOT23", "AO3400A", 79.5, 35.5, 0, "1:/io/PWM2 2:GND 3:/io/OUT2"),
    ("R33", "R0603", "100k", 73.8, 30.5, 180, "1:/io/PWM1 2:GND"),
    ("R34", "R0603", "100k", 73.8, 35.5, 180, "1:/io/PWM2 2:GND"),
    ("J8", "TERM3", "OUT", 77.5, 60.3, 0, "1:/io/OUT1 2:+5V 3:/io/OUT2"),
    ("R35", "R0603", "10k", 33.2, 42.3, 180, "1:/io/SPARE1 2:GND"),
    ("TP2", "TP", "+5V", 46, 62, 0, "1:+5V"),
    ("TP3", "TP", "+3V3", 27, 35.8, 0, "1:+3V3"),
    ("TP4", "TP", "GND", 62, 6, 0, "1:GND"),
]

_WITHOUT_NETS = [
    ("H1", "HOLE", "M3", 4, 4), ("H2", "HOLE", "M3", 92, 4), ("H3", "HOLE", "M3", 4, 62), ("H4", "HOLE", "M3", 92, 62),
    ("FID1", "FID", "1mm", 82, 6), ("FID2", "FID", "1mm", 12, 61), ("FID3", "FID", "1mm", 88, 36),
    ("REF**", "MARK", "mark", 30, 61.8), ("REF**", "MARK", "mark", 84, 13),
]


def revision_a():
    parts = []
    for reference, footprint, value, x, y, rotation, pads in _PARTS:
        nets = _mcu() if pads is None else _pads(pads)
        parts.append(Part(reference, footprint, value, round(x * 1000), round(y * 1000), rotation, nets, key=reference))
    for i, (reference, footprint, value, x, y) in enumerate(_WITHOUT_NETS):
        parts.append(Part(reference, footprint, value, round(x * 1000), round(y * 1000), 0, {}, key=f"{reference}/{i}"))
    for part in parts:
        numbers = {pad.number for pad in LIBRARY[part.footprint].pads if pad.number}
        unknown = set(part.nets) - numbers
        if unknown or (part.nets and numbers - set(part.nets)):
            raise ValueError(f"{part.reference}: pads {unknown or numbers - set(part.nets)}")
    copper = [("F.Cu", "signal", ""), ("B.Cu", "signal", "")]
    technical = [("B.Adhes", "B.Adhesive"), ("F.Adhes", "F.Adhesive"), ("B.Paste", ""), ("F.Paste", ""),
                 ("B.SilkS", "B.Silkscreen"), ("F.SilkS", "F.Silkscreen"), ("B.Mask", ""), ("F.Mask", ""),
                 ("Dwgs.User", "User.Drawings"), ("Cmts.User", "User.Comments"), ("Eco1.User", "User.Eco1"),
                 ("Edge.Cuts", ""), ("Margin", ""), ("B.CrtYd", "B.Courtyard"), ("F.CrtYd", "F.Courtyard"), ("B.Fab", ""),
                 ("F.Fab", "")]
    return Design("A", parts, copper, technical, {"/power/SW": 500})


def revise(design):
    """Turns revision A into revision B."""
    design.revision = "B"
    # two inner planes; the outer layers get names, the back one may carry power too
    design.copper = [("F.Cu", "signal", "Top"), ("In1.Cu", "power", "GND plane"), ("In2.Cu", "power", ""),
                     ("B.Cu", "mixed", "Bottom")]
    design.technical = [layer for layer in design.technical if layer[0] != "Eco1.User"] + [("User.1", "Assembly")]
    # the bus has got a new name, the same pads and tracks
    for part in design.parts:
        part.nets = {pad: net.replace("/i2c/S", "/bus/S") for pad, net in part.nets.items()}
    # the lamp that showed a driven bus is gone; a lamp of the controller's own has come
    design.parts = [part for part in design.parts if part.reference not in ("D8", "R32")]
    design.part("U1").nets["22"] = "/io/LED3"
    design.parts += [
        Part("R36", "R0603", "1k", 62000, 33000, 180, _pads("1:/io/LED3 2:Net-(D12-Pad2)"), key="R36"),
        Part("D12", "LED0805", "red", 67000, 33000, 180, _pads("1:GND 2:Net-(D12-Pad2)"), key="D12"),
        Part("C31", "C0603", "100n", 66500, 37000, 0, _pads("1:+3V3 2:GND"), key="C31"),
    ]
    # moved, turned, on the other side, another value, another footprint
    design.part("C19").y += 1000
    design.part("C19").x -= 500
    design.part("R17").rotation = 270
    design.part("C15").back = True
    design.part("R14").value = "2k2"
    design.part("R15").value = "2k2"
    design.part("C5").footprint = "C0805"
    design.part("C30").value = "22u"
    design.part("FID3").x += 500
    # the step-down's output carries more
    design.widths["/power/SW"] = 600
    return design
