#!/usr/bin/env bash
# update.sh BUILD: renews the list of exported symbols and the snapshot of the interface after a wanted change, from a build
# without sanitizers whose tests "package.*" and "interface.*" have run. Look at the difference before it is committed:
# what is gone or moved breaks programs that were built before, and wants a new major version.
set -euo pipefail
build=$1
cd "$(dirname "${BASH_SOURCE[0]}")"
./exported_symbols.sh "$build/uicomps/liboxecad_ui.so" /dev/null "$build/tests/interface" >/dev/null 2>&1 || true
cp "$build/tests/interface/exported_symbols.txt" .
./abi.sh write "$build/tests/package/against_another_toolkit/oxecad_ui/uicomps/liboxecad_ui.so" oxecad_ui.abi
git diff --stat -- exported_symbols.txt oxecad_ui.abi
