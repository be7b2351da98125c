#!/usr/bin/env bash
# abi_break.sh BUILT SNAPSHOT WORK ROOT PLATFORM COMPILER: breaks the interface on purpose and fails unless the check of
# the interface sees it. Twice: a virtual member is put before others, and a function is left out.
set -euo pipefail
built=$1 snapshot=$2 work=$3 root=$4 platform=$5 compiler=$6
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
objects=$built/CMakeFiles/oxecad_ui.dir
rm -rf "$work"
mkdir -p "$work/uicomps/input" "$work/results"

# compare NAME OBJECT...: links a library and compares it with the snapshot; the result is the exit code.
compare() {
  local library=$work/lib$1.so
  "$compiler" -shared -Wl,-soname,liboxecad_ui.so.1 -Wl,--version-script="$root/uicomps/exports.map" -o "$library" \
    "${@:2}" -L"$platform/lib" -luiox
  "$here/abi.sh" compare "$library" "$snapshot" "$work/results" >"$work/$1.log" 2>&1
}
must_break() {
  local status=0
  compare "$@" || status=$?
  [ $((status & 8)) != 0 ] || {
    cat "$work/$1.log" >&2
    echo "$1 was not seen as a break (exit code $status)" >&2
    exit 1
  }
  echo "$1 is seen:"
  head -n 12 "$work/$1.log"
}

mapfile -t all < <(find "$objects" -name '*.o')
compare nothing_broken "${all[@]}" || {
  cat "$work/nothing_broken.log" >&2
  echo "The unbroken library is taken for a broken one" >&2
  exit 1
}

cp "$root"/uicomps/input/* "$work/uicomps/input/"
sed -i 's|^  virtual bool CanBeAPartOfValidInput|  virtual void Before() const {}\n&|' "$work/uicomps/input/InputTest.h"
grep -q Before "$work/uicomps/input/InputTest.h"
broken=()
for source in "$work"/uicomps/input/*.cpp; do
  "$compiler" -std=c++20 -g -fPIC -fvisibility=hidden -fvisibility-inlines-hidden -I"$work" -I"$root" \
    -I"$platform/include" -c "$source" -o "$source.o"
  broken+=("$source.o")
done
mapfile -t rest < <(find "$objects" -name '*.o' ! -path '*/input/*')
must_break a_virtual_member_before_others "${rest[@]}" "${broken[@]}"

mapfile -t without < <(find "$objects" -name '*.o' ! -name 'MarkupTags.cpp.o')
must_break a_function_left_out "${without[@]}"
