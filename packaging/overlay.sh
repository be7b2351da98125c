#!/usr/bin/env bash
# overlay.sh WORK SOURCES PACKAGE...: installs the packages over a copy-on-write view of this system, as an administrator
# would, uses them without any help, and purges them. This system itself is not changed. 77: it takes root and overlay
# mounts, and here they are not to be had.
set -euo pipefail
if [ "${1:-}" != --inside ]; then
  work=$1
  mkdir -p "$work/overlay"
  [ "$(id -u)" = 0 ] && unshare -m sh -c 'mount -t tmpfs none "$1" && cd "$1" && mkdir upper work merged &&
    mount -t overlay none -o lowerdir=/,upperdir=upper,workdir=work merged' sh "$work/overlay" 2>/dev/null || exit 77
  exec unshare -m --propagation private "$0" --inside "$@"
fi
shift
work=$1 sources=$2
shift 2
die() {
  printf '%s\n' "$*" >&2
  exit 1
}

cd "$work/overlay"
mount -t tmpfs none .
mkdir upper work merged
mount -t overlay none -o lowerdir=/,upperdir=upper,workdir=work merged
for folder in /proc /dev "$work" "$sources"; do
  mkdir -p "merged$folder"
  mount --rbind "$folder" "merged$folder"
done
mkdir -p merged/tmp/use
inside() { chroot merged env -u LD_LIBRARY_PATH QT_QPA_PLATFORM=offscreen HOME=/tmp/use LC_ALL=C.UTF-8 "$@"; }

inside dpkg --install "$@" >"$work/overlay.log" 2>&1 || die "The packages could not be installed: $(tail -n 5 "$work/overlay.log")"
names=()
for package in "$@"; do names+=("$(dpkg-deb -f "$package" Package)"); done
inside dpkg --verify "${names[@]}"
version=$(dpkg-deb -f "$1" Version)

[ "$(inside oxviewer --version)" != "" ]
inside oxviewer "$sources/viewer/samples/node-a.kicad_pcb" --screenshot /tmp/use/board.png --size 800x600
[ -s merged/tmp/use/board.png ] || die "oxviewer painted nothing"
# shellcheck disable=SC2016
inside env OXECAD_UIOX_PATH="$sources/tests/package/stranger" sh -euc '
  cd /tmp/use
  c++ -std=c++17 "$1/tests/package/stranger/main.cpp" -o by_pkg_config $(pkg-config --cflags --libs oxecad_ui)
  ./by_pkg_config | grep "^$2 DQ1 DQ9 DQ10$"
  cmake -S "$1/tests/package/stranger" -B by_cmake -DOXECAD_UI_VERSION_EXPECTED="$2" >/dev/null
  cmake --build by_cmake >/dev/null
  ./by_cmake/stranger | grep "^$2 DQ1 DQ9 DQ10$"
  test -s /usr/share/doc/liboxecad-ui-doc/html/index.html
  if command -v man >/dev/null; then man oxviewer >/dev/null; fi' sh "$sources" "$version" >"$work/overlay.log" 2>&1 ||
  die "The installed packages could not be used: $(tail -n 15 "$work/overlay.log")"

inside dpkg --purge "${names[@]}" >"$work/overlay.log" 2>&1 || die "$(cat "$work/overlay.log")"
left=$(inside find /usr /etc /var/lib/dpkg/info \( -name '*oxecad*' -o -name '*oxviewer*' -o -name 'libuiox*' \) ! -path "*/src/*")
[ -z "$left" ] || die "After the purge there is still: $left"
