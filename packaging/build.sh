#!/usr/bin/env bash
# build.sh BUILD: builds the Debian packages in a folder and leaves them in BUILD/packages. The bytes depend on the sources
# alone: two builds in two folders are equal. SOURCE_DATE_EPOCH sets the time that the packages bear.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
mkdir -p "$1"
build=$(cd "$1" && pwd)
export SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git -C "$root" log -1 --format=%ct 2>/dev/null || stat -c %Y "$root/CHANGELOG.md")}
export LC_ALL=C.UTF-8 TZ=UTC
umask 022

harden="-fstack-protector-strong -D_FORTIFY_SOURCE=2 -Wformat -Werror=format-security"
anonymous="-ffile-prefix-map=$build=build -ffile-prefix-map=$root=."
link="-Wl,-z,relro -Wl,-z,now"
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr -DCMAKE_SKIP_RPATH=ON \
  -DOXECAD_BUILD_PACKAGES=ON -DOXECAD_BUILD_TESTS=OFF -DCMAKE_CXX_FLAGS="$harden $anonymous" \
  -DCMAKE_SHARED_LINKER_FLAGS="$link" -DCMAKE_EXE_LINKER_FLAGS="$link"
LD_LIBRARY_PATH= cmake --build "$build"
(cd "$build" && cpack -B "$build/packages")
rm -rf "$build/packages/_CPack_Packages"
