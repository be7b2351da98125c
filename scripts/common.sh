# What the project's commands share. Sourced, with the project's root as the current folder.

set -euo pipefail
export LC_ALL=C.UTF-8

say() { printf '%s\n' "$*"; }
die() {
  printf '%s\n' "$*" >&2
  exit 1
}

# Packages, by what needs them. The README gives the reason for each.
packages_build=(g++ cmake ninja-build)
packages_platform=(nlohmann-json3-dev libutfcpp-dev libpng-dev)
packages_front=(qt6-base-dev fonts-dejavu-core)
packages_test=(pkg-config locales libgtest-dev librapidcheck-dev kicad-demos doxygen abigail-tools)
packages_packaging=(dpkg-dev fakeroot file lintian gdb)
packages_bench=(libbenchmark-dev)
packages_fuzz=(clang libclang-rt-14-dev)

# install_packages NAME...: installs those that are missing; says so only when there are any.
install_packages() {
  local missing=() package
  for package in "$@"; do
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)" = installed ] || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  command -v apt-get >/dev/null || die "These packages are missing, and this is no Debian to install them on: ${missing[*]}"
  local root=()
  if [ "$(id -u)" != 0 ]; then
    command -v sudo >/dev/null || die "These packages are missing; install them as root: apt-get install ${missing[*]}"
    root=(sudo)
  fi
  say "Installing ${missing[*]} ..."
  mkdir -p build
  { "${root[@]}" apt-get update -q &&
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${missing[@]}"; } \
    >build/install.log 2>&1 </dev/null || {
    tail -n 15 build/install.log >&2
    die "The packages could not be installed; build/install.log has the rest."
  }
}

# with_progress TITLE LOG COMMAND...: runs a command quietly; shows how far it is now and then, and its last lines when it
# fails. The command's lines that begin with [n/m] tell how far it is.
with_progress() {
  local title=$1 log=$2 pid shown='' now status=0
  shift 2
  "$@" >"$log" 2>&1 </dev/null &
  pid=$!
  local waited=0
  while kill -0 "$pid" 2>/dev/null; do
    sleep 1
    waited=$((waited + 1))
    if [ $((waited % 20)) = 0 ]; then
      now=$(grep -o '^\[[0-9]*/[0-9]*\]' "$log" 2>/dev/null | tail -n 1 || true)
      [ -z "$now" ] || [ "$now" = "$shown" ] || say "$title $now"
      shown=$now
    fi
  done
  wait "$pid" || status=$?
  if [ $status != 0 ]; then
    grep -n -m 1 -A 20 -E 'FAILED:|error:|CMake Error' "$log" >&2 || tail -n 20 "$log" >&2
    die "$title failed; $log has the rest."
  fi
}

# build PRESET [CMAKE-ARGUMENT...] -- [TARGET...]: configures and builds into build/PRESET.
build() {
  local preset=$1 arguments=() targets=()
  shift
  while [ $# -gt 0 ] && [ "$1" != -- ]; do
    arguments+=("$1")
    shift
  done
  [ $# = 0 ] || shift
  [ $# = 0 ] || targets=(--target "$@")
  mkdir -p "build/$preset"
  with_progress "Configuring $preset" "build/$preset/configure.log" cmake --preset "$preset" "${arguments[@]}"
  with_progress "Building $preset" "build/$preset/build.log" cmake --build --preset "$preset" "${targets[@]}"
}
