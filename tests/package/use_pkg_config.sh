#!/usr/bin/env bash
# use_pkg_config.sh PREFIX LIBDIR WORK COMPILER [FLAG...]: moves an installed prefix, then builds and runs the stranger's
# program with nothing but pkg-config.
set -euo pipefail
prefix=$1 libdir=$2 work=$3 compiler=$4
shift 4
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
rm -rf "$work"
mkdir -p "$work"
cp -a "$prefix" "$work/moved"
export PKG_CONFIG_PATH=$work/moved/$libdir/pkgconfig
read -ra flags <<<"$(pkg-config --cflags --libs oxecad_ui)"
case "${flags[*]}" in *"$prefix"*) echo "The flags still name the first prefix: ${flags[*]}" >&2; exit 1 ;; esac
"$compiler" -std=c++17 "$@" "$here/stranger/main.cpp" -o "$work/stranger" "${flags[@]}"
LD_LIBRARY_PATH=$work/moved/$libdir "$work/stranger"
