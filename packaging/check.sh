#!/usr/bin/env bash
# check.sh WORK: builds the Debian packages twice, in two folders with two copies of the sources, and holds them together
# byte by byte; asks lintian; installs them, uses them and purges them. The packages are installed into a folder of its
# own (dpkg is given a copy of this system's list of packages, so that it asks for what they depend on), and then over a
# copy-on-write view of this system (overlay.sh). Nothing of this system is changed.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
mkdir -p "$1"
work=$(cd "$1" && pwd)
say() { printf '%s\n' "$*"; }
die() {
  printf '%s\n' "$*" >&2
  exit 1
}

copy_sources() {
  rm -rf "$1"
  mkdir -p "$1"
  if git -C "$root" rev-parse --is-inside-work-tree >/dev/null 2>&1; then
    (cd "$root" && git ls-files -z --cached --others --exclude-standard | tar -c --null -T - --ignore-failed-read)
  else
    tar -c -C "$root" --exclude=./build .
  fi | tar -x -C "$1"
}

export SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git -C "$root" log -1 --format=%ct 2>/dev/null || stat -c %Y "$root/CHANGELOG.md")}
for place in one "elsewhere/below"; do
  copy_sources "$work/$place/sources"
  rm -rf "$work/$place/build"
  say "Building the packages in $work/$place"
  "$work/$place/sources/packaging/build.sh" "$work/$place/build" >"$work/build.log" 2>&1 || {
    tail -n 30 "$work/build.log" >&2
    die "The packages could not be built; $work/build.log has the rest."
  }
done
packages=("$work"/one/build/packages/*.deb)
for package in "${packages[@]}"; do
  cmp "$package" "$work/elsewhere/below/build/packages/$(basename "$package")"
done
say "${#packages[@]} packages, the same bytes from both folders"

lintian --fail-on error "${packages[@]}" || die "lintian found errors"

# Installs below a folder of its own.
system=$work/system
admin=$work/admin
rm -rf "$system" "$admin"
mkdir -p "$system" "$admin/info" "$admin/updates" "$admin/triggers"
cp /var/lib/dpkg/status "$admin/status"
touch "$admin/available"
# Scripts of packages run in this system; its cache of libraries is none of their business here.
mkdir -p "$work/bin"
printf '#!/bin/sh\n' >"$work/bin/ldconfig"
chmod +x "$work/bin/ldconfig"
own_dpkg() {
  local as_root=()
  [ "$(id -u)" = 0 ] || as_root=(fakeroot)
  PATH=$work/bin:/usr/sbin:/sbin:$PATH "${as_root[@]}" dpkg --instdir="$system" --admindir="$admin" \
    --force-script-chrootless --log=/dev/null "$@" >"$work/dpkg.log" 2>&1 || {
    cat "$work/dpkg.log" >&2
    die "dpkg $1 failed"
  }
}
own_dpkg --install "${packages[@]}"
names=()
for package in "${packages[@]}"; do names+=("$(dpkg-deb -f "$package" Package)"); done
for name in "${names[@]}"; do
  dpkg-query --admindir="$admin" -W -f '${Status}' "$name" | grep -q '^install ok installed$' || die "$name is not installed"
done
say "Installed: ${names[*]}"

# Uses them: the viewer, and a program that is built against the packages.
libraries=$(dirname "$(find "$system/usr/lib" -name 'liboxecad_ui.so')")
export LD_LIBRARY_PATH=$libraries QT_QPA_PLATFORM=offscreen OXECAD_UIOX_PATH=$root/tests/package/stranger
version=$(dpkg-deb -f "${packages[0]}" Version)
"$system/usr/bin/oxviewer" --version | grep -qF "$version" || die "oxviewer does not say its version"
"$system/usr/bin/oxviewer" "$root/viewer/samples/node-a.kicad_pcb" --screenshot "$work/board.png" --size 800x600
[ -s "$work/board.png" ] || die "oxviewer painted nothing"
cmake -S "$root/tests/package/stranger" -B "$work/stranger" -DCMAKE_PREFIX_PATH="$system/usr" \
  -DOXECAD_UI_VERSION_EXPECTED="$version" >"$work/stranger.log"
cmake --build "$work/stranger" >>"$work/stranger.log"
"$work/stranger/stranger" | grep -q "^$version DQ1 DQ9 DQ10$" || die "the stranger's program says something else"
[ -s "$system/usr/share/doc/liboxecad-ui-doc/html/index.html" ] || die "the documentation is missing"
gzip -t "$system/usr/share/man/man1/oxviewer.1.gz"
say "Used: the viewer, the headers and libraries, the documentation"
unset LD_LIBRARY_PATH

own_dpkg --purge "${names[@]}"
left=$(find "$system" ! -type d)
[ -z "$left" ] || die "After the purge there is still: $left"
say "Purged: nothing is left"

# Once more where it belongs: in the system itself, seen through an overlay.
status=0
"$root/packaging/overlay.sh" "$work" "$root" "${packages[@]}" || status=$?
case $status in
  0) say "Installed, used and purged in an overlay of this system" ;;
  77) say "No overlay of this system is to be had here" ;;
  *) exit $status ;;
esac
