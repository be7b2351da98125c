#!/usr/bin/env bash
# exported_symbols.sh LIBRARY LIST WORK: whether the library exports exactly what the list says, and nothing that belongs
# to the standard library. After a wanted change: update.sh.
set -euo pipefail
library=$1 list=$2 now=$3/exported_symbols.txt
export LC_ALL=C
nm -D --defined-only --format=posix "$library" | awk '{ print $1 }' | sort >"$now.mangled"
c++filt <"$now.mangled" | sort | uniq -c | awk '{ n = $1; sub(/^ *[0-9]+ /, ""); print (n > 1 ? $0 "  x" n : $0) }' >"$now"
# Functions and data of the standard library, its type information and tables, in any form of the name.
if grep -E '^(_ZNK?St|_ZSt|_ZT[VTISC]+N?K?St|_ZGV|_ZNK?[0-9]*__gnu_cxx)' "$now.mangled" | c++filt; then
  echo "The library exports what belongs to the standard library." >&2
  exit 1
fi
diff -u "$list" "$now" || {
  echo "The exported symbols are others than those of $list (left: the list, right: the library)." >&2
  exit 1
}
printf '%s symbols, as listed\n' "$(wc -l <"$now")"
