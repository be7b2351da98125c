#!/usr/bin/env bash
# run.sh GDB PROGRAM PRINTERS WORK: looks at the program with the pretty-printers and compares what they say. 77: a program
# may not be debugged here.
set -euo pipefail
gdb=$1 program=$2 printers=$3 work=$4
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
rm -f "$work/values.txt" "$work/tree.txt"
export PYTHONUTF8=1 LC_ALL=C.UTF-8
"$gdb" -nx -batch -ex "set charset UTF-8" -ex "source $printers" -ex "python VALUES = '$work/values.txt'" \
  -ex "python TREE = '$work/tree.txt'" -x "$here/look.py" "$program" >"$work/gdb.log" 2>&1 || true
if grep -q -i 'ptrace.*not permitted\|Could not trace' "$work/gdb.log"; then
  echo "A program may not be debugged here."
  exit 77
fi
[ -e "$work/values.txt" ] || {
  cat "$work/gdb.log" >&2
  exit 1
}
diff -u "$here/values.txt" "$work/values.txt"
if grep "No function can be called here" "$work/gdb.log"; then exit 0; fi
diff -u "$here/tree.txt" "$work/tree.txt"
