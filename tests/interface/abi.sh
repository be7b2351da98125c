#!/usr/bin/env bash
# abi.sh compare LIBRARY SNAPSHOT WORK: whether programs built against the snapshot's library run with this one, and
#                                       whether the snapshot is up to date.
# abi.sh write LIBRARY SNAPSHOT:        writes the snapshot, after a wanted change.
# The library must have been built with a debugger's data. The exit code of a comparison is that of abidiff: a set of
# bits, 4 a change, 8 one that breaks programs.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(cd "$here/../.." && pwd)
snapshot_of() {
  abidw --headers-dir "$root/uicomps" --drop-private-types --suppressions "$here/abi_inside.ini" --exported-interfaces-only \
    --no-corpus-path --no-comp-dir-path --no-show-locs --no-elf-needed "$1" | sed "s|path='[^']*/uicomps/|path='uicomps/|"
}
case $1 in
  write) snapshot_of "$2" >"$3" ;;
  compare)
    snapshot_of "$2" >"$4/oxecad_ui.abi"
    abidiff --no-added-syms "$3" "$4/oxecad_ui.abi" || exit $?
    abidiff "$3" "$4/oxecad_ui.abi" || {
      echo "Something was added, or changed without breaking programs. If that is wanted: tests/interface/abi.sh write $2 $3" >&2
      exit 1
    }
    ;;
esac
