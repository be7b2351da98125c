# Writes what GDB shows of the program: its values to VALUES, the tree to TREE. Some machines let a debugger look at a program
# but not call a function in it; then there is no TREE.
import re

gdb.execute("set pagination off")
gdb.execute("set breakpoint pending on")
gdb.execute("break Look", to_string=True)
gdb.execute("run", to_string=True)
gdb.execute("up", to_string=True)


def write(file, lines):
    with open(file, "w", encoding="utf-8") as output:
        output.write("\n".join(lines) + "\n")


values = []
for name in ("symbol", "empty", "held", "nothing", "info", "colored"):
    text = gdb.execute("output " + name, to_string=True)
    if name == "held":
        text = re.sub(r"^SmartPtr to 0x[0-9a-f]+ (\(\d+ references\)).*", r"SmartPtr to something \1", text, flags=re.S)
    values.append("%s: %s" % (name, text))
write(VALUES, values)

try:
    gdb.parse_and_eval("((int (*)()) getpid)()")
except gdb.error as error:
    print("No function can be called here: %s" % error)
else:
    drawn = gdb.execute("oxecad-tree nets", to_string=True) + gdb.execute('oxecad-tree &nets "power"', to_string=True)
    write(TREE, drawn.splitlines())
gdb.execute("kill")
