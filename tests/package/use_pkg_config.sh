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
for package in "$work/moved/$libdir"/pkgconfig/*.pc; do
  case $(basename "$package" .pc) in oxecad_uiox_qt) pkg-config --exists Qt6Widgets || continue ;; esac
  case $(pkg-config --cflags --libs "$(basename "$package" .pc)") in
    *"$prefix"*) echo "$package still names the first prefix" >&2; exit 1 ;;
    *"-I$work/moved/"*) ;;
    *) echo "$package does not name the prefix that it lies in" >&2; exit 1 ;;
  esac
done
read -ra flags <<<"$(pkg-config --cflags --libs oxecad_ui)"
"$compiler" -std=c++17 "$@" "$here/stranger/main.cpp" -o "$work/stranger" "${flags[@]}"

# What the program is bound to is the major version alone; all that is installed states the same version.
version=$(pkg-config --modversion oxecad_ui)
readelf -d "$work/stranger" | grep -q "NEEDED.*\[liboxecad_ui\.so\.${version%%.*}\]"
[ -e "$work/moved/$libdir/liboxecad_ui.so.$version" ]
said=$(LD_LIBRARY_PATH=$work/moved/$libdir "$work/stranger")
printf '\n%s\n' "$said"
[ "${said%% *}" = "$version" ]
