"""Pretty-printers and a tree command for GDB.

    (gdb) source support/gdb/oxecad_printers.py
    (gdb) print symbol                  Symbol "GUI/EcadView"
    (gdb) print test                    SmartPtr to 0x... (2 references)
    (gdb) print info                    NodeInfo "power/GND" "GND" [x] <net>
    (gdb) oxecad-tree nets              the nodes of a tree, drawn; nets is a component, or points at one
    (gdb) oxecad-tree nets "power"      the same below one node

The tree is read through the toolkit's own functions, so the program must be running; any toolkit will do.
"""
import gdb
import gdb.printing


def narrow_text(string):
    """The text of a std::string."""
    length = int(string["_M_string_length"])
    return string["_M_dataplus"]["_M_p"].string("utf-8", "replace", length)


def wide_units(pointer, length):
    """The text of UTF-16 code units, one in each wchar_t; a half of a pair that is alone becomes U+FFFD."""
    units = b"".join((int(pointer[i]) & 0xFFFF).to_bytes(2, "little") for i in range(length))
    return units.decode("utf-16-le", "replace")


def wide_text(string):
    """The text of a std::wstring."""
    return wide_units(string["_M_dataplus"]["_M_p"], int(string["_M_string_length"]))


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"').replace("\n", "\\n") + '"'


MARKS = {0: "[ ]", 1: "[x]", 2: "[-]"}


def colour(value):
    """A colour as 0x00BBGGRR; "none" for 0xFFFFFFFF."""
    number = int(value) & 0xFFFFFFFF
    return "none" if number == 0xFFFFFFFF else "0x%06x" % number


class SymbolPrinter:
    """oxkutils::Symbol"""

    def __init__(self, value):
        self.value = value

    def to_string(self):
        text = self.value["m_text"]
        return "Symbol " + quoted("" if int(text) == 0 else narrow_text(text.dereference()))


class SmartPtrPrinter:
    """oxkutils::SmartPtr<T>"""

    def __init__(self, value):
        self.value = value

    def to_string(self):
        held = self.value["m_object"]
        if int(held) == 0:
            return "SmartPtr to nothing"
        return "SmartPtr to 0x%x (%s)" % (int(held), self.references(held))

    @staticmethod
    def references(held):
        try:
            count = int(held.dereference()["m_references"]["_M_i"])
        except gdb.error:
            return "references unknown"
        return "1 reference" if count == 1 else "%d references" % count

    def children(self):
        held = self.value["m_object"]
        if int(held) != 0 and held.dereference().type.strip_typedefs().sizeof > 1:  # else only declared
            yield "object", held.dereference()


class NodeInfoPrinter:
    """oxecad_ui::Tree::NodeInfo and the records that are derived from it"""

    COLOURS = ("color", "colorA", "colorB", "colorOverlap")

    def __init__(self, value):
        self.value = value

    def to_string(self):
        value = self.value
        parts = [value.type.strip_typedefs().unqualified().name.split("::")[-1], quoted(narrow_text(value["name"]))]
        label, kind = wide_text(value["label"]), narrow_text(value["type"])
        if label:
            parts.append(quoted(label))
        parts.append(MARKS.get(int(value["state"]), "[?]"))
        if kind:
            parts.append("<" + kind + ">")
        if value["expanded"]:
            parts.append("+")
        for field in value.type.strip_typedefs().fields():
            if not field.is_base_class and field.name not in ("name", "label", "type", "state", "expanded"):
                shown = colour(value[field]) if field.name in self.COLOURS else str(value[field])
                if not field.name.startswith("_vptr"):
                    parts.append("%s=%s" % (field.name, shown.split("::")[-1]))
        return " ".join(parts)


def printers():
    collection = gdb.printing.RegexpCollectionPrettyPrinter("oxecad_ui")
    collection.add_printer("Symbol", "^oxkutils::Symbol$", SymbolPrinter)
    collection.add_printer("SmartPtr", "^oxkutils::SmartPtr<.*>$", SmartPtrPrinter)
    collection.add_printer(
        "NodeInfo",
        "^oxecad_ui::(Tree::NodeInfo|ColorTree::ColorNodeInfo|CompareColorTree::CompareNodeInfo|UserDataTree::DataNodeInfo)$",
        NodeInfoPrinter,
    )
    return collection


class Toolkit:
    """Reads one tree through the toolkit's functions, called in the program."""

    LABEL, CHECKED, ROOT, MIXED, TYPE, CHILDREN, INQUIRE = 2, 31, 54, 177, 282, 284, 2203

    def __init__(self, component):
        self.device = int(component["m_device"]["_M_dataplus"]["_M_p"])
        self.name = int(component["m_name"]["_M_dataplus"]["_M_p"])
        self.memory = gdb.selected_inferior()
        self.place = self.allocate(16)

    def close(self):
        self.release(self.place)

    @staticmethod
    def allocate(size):
        return int(gdb.parse_and_eval("((void* (*)(unsigned long)) malloc)(%dUL)" % size))

    @staticmethod
    def release(address):
        gdb.parse_and_eval("((void (*)(void*)) free)((void*) %d)" % address)

    def call(self, function, *arguments):
        """Calls a function of the toolkit with the component in front; codes are ints, all else fills a slot."""
        self.memory.write_memory(self.place, bytes(16))
        values = ["(const char*) %dUL" % self.device, "(const char*) %dUL" % self.name]
        values += ["%d" % value if is_code else "%dUL" % value for value, is_code in arguments]
        kind = "int (*)(const char*, const char*, %s...)" % ("int, " if function == "ui_do_operation" else "")
        return int(gdb.parse_and_eval("((%s) %s)(%s)" % (kind, function, ", ".join(values)))) == 0

    def word(self, offset=0, size=8):
        return int.from_bytes(self.memory.read_memory(self.place + offset, size).tobytes(), "little")

    def root(self):
        if not self.call("ui_retrieve", (self.ROOT, True), (self.place, False), (0, False)) or self.word() == 0:
            return None
        return self.text_at(self.word())

    def ask(self, node, attribute, two_places=False):
        places = [(self.place, False), (self.place + 8, False)] if two_places else [(self.place, False)]
        return self.call(
            "ui_do_operation", (self.INQUIRE, True), (node, False), (attribute, True), *places, (0, False)
        )

    @staticmethod
    def text_at(address):
        return gdb.Value(address).cast(gdb.lookup_type("char").pointer()).string("utf-8", "replace")

    def wide_at(self, address):
        pointer = gdb.Value(address).cast(gdb.lookup_type("wchar_t").pointer())
        length = 0
        while int(pointer[length]) != 0:
            length += 1
        return wide_units(pointer, length)

    def draw(self, name, depth=0):
        """Yields a line for a node and each node below it."""
        encoded = name.encode() + b"\0"
        node = self.allocate(len(encoded))
        try:
            self.memory.write_memory(node, encoded)
            label = self.wide_at(self.word()) if self.ask(node, self.LABEL) and self.word() else ""
            kind = self.text_at(self.word()) if self.ask(node, self.TYPE) and self.word() else ""
            mixed = self.ask(node, self.MIXED) and self.word(0, 4) != 0
            checked = self.ask(node, self.CHECKED) and self.word(0, 4) != 0
            children = self.children(node)
        finally:
            self.release(node)
        line = "  " * depth + name
        if label != name:
            line += " " + quoted(label)
        line += " " + MARKS[2 if mixed else 1 if checked else 0]
        yield line + (" <%s>" % kind if kind else "")
        for child in children:
            yield from self.draw(child, depth + 1)

    def children(self, node):
        """The children's names, copied: the list is good for a moment only."""
        if not self.ask(node, self.CHILDREN, two_places=True):
            return []
        count, array = self.word(0, 4), self.word(8)
        if array == 0:
            return []
        names = gdb.Value(array).cast(gdb.lookup_type("char").pointer().pointer())
        return [names[i].string("utf-8", "replace") for i in range(count)]


class TreeCommand(gdb.Command):
    """oxecad-tree COMPONENT [NODE]: draws the nodes of a tree, all of them or those of one node."""

    def __init__(self):
        super().__init__("oxecad-tree", gdb.COMMAND_DATA, gdb.COMPLETE_EXPRESSION)

    def invoke(self, argument, from_tty):
        words = gdb.string_to_argv(argument)
        if not words or len(words) > 2:
            raise gdb.GdbError("Usage: oxecad-tree COMPONENT [NODE]")
        component = gdb.parse_and_eval(words[0])
        while component.type.strip_typedefs().code in (gdb.TYPE_CODE_PTR, gdb.TYPE_CODE_REF):
            component = component.referenced_value()
        toolkit = Toolkit(component)
        try:
            start = words[1] if len(words) == 2 else toolkit.root()
            if start is None:
                print("The tree has no root.")
                return
            for line in toolkit.draw(start):
                print(line)
        finally:
            toolkit.close()


gdb.printing.register_pretty_printer(None, printers(), replace=True)
TreeCommand()
