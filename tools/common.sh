# Shared by ./run and ./test. Sourced, never run; expects bash with `set -euo pipefail`.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
jobs=$(nproc)

native_packages=(g++ cmake ninja-build googletest libbenchmark-dev nlohmann-json3-dev libcli11-dev)
fuzz_packages=(clang libclang-rt-dev)
check_packages=(clang-format clang-tidy)
wine_packages=(g++-mingw-w64-x86-64-posix mingw-w64-tools wine64 wine xvfb xauth xdotool imagemagick
               nsis osslsigncode)

say() { printf '== %s\n' "$*"; }
complain() { printf '%s\n' "$*" >&2; }

missing_packages() {
  local package
  for package in "$@"; do
    dpkg-query -W -f '${Status}\n' "$package" 2>/dev/null | grep -q '^install ok installed$' ||
      printf '%s\n' "$package"
  done
}

as_root() {
  if [ "$(id -u)" = 0 ]; then "$@"; else sudo -n "$@"; fi
}

# Installs what is missing of the named Debian packages; false when that cannot be done here.
need_packages() {
  local missing
  command -v dpkg-query >/dev/null || { complain "This is no Debian; please install: $*"; return 1; }
  mapfile -t missing < <(missing_packages "$@")
  [ ${#missing[@]} -gt 0 ] || return 0
  say "installing ${missing[*]}"
  mkdir -p "$root/build"
  if as_root apt-get update >"$root/build/apt.log" 2>&1 &&
    as_root env DEBIAN_FRONTEND=noninteractive \
      apt-get install -y --no-install-recommends "${missing[@]}" >>"$root/build/apt.log" 2>&1; then
    return 0
  fi
  complain "Cannot install ${missing[*]}; what apt-get said:"
  tail -n 5 "$root/build/apt.log" >&2
  return 1
}

# build PRESET TARGET...: configures when needed and builds; quiet unless it fails.
build() {
  local preset=$1 log=$root/build/$1.log
  shift
  say "building $preset: $*"
  mkdir -p "$root/build"
  local launcher=()
  if command -v ccache >/dev/null; then launcher=(-D CMAKE_CXX_COMPILER_LAUNCHER=ccache); fi
  if ! (cd "$root" && cmake --preset "$preset" "${launcher[@]}" &&
    cmake --build "build/$preset" -j "$jobs" --target "$@") >"$log" 2>&1; then
    tail -n 60 "$log" >&2
    complain "The build of $preset failed; the whole log is $log"
    return 1
  fi
}

# A throw-away Wine prefix of our own (build/wine, or what ORVANE_PREFIX names there), with a home of
# its own since its desktop shows the home.
wine_environment() {
  export WINEPREFIX=$root/build/${ORVANE_PREFIX:-wine}
  export HOME=$root/build/wine-home
  export WINEDEBUG=${WINEDEBUG:--all}
  export WINEDLLOVERRIDES="winedbg.exe=;mscoree=;mshtml="  # a crash ends at once; no add-on downloads
  mkdir -p "$HOME"
  if [ ! -e "$WINEPREFIX/system.reg" ]; then
    say "making the Wine prefix ${WINEPREFIX#"$root/"}"
    timeout 300 wineboot -i >"$root/build/wineboot.log" 2>&1
    timeout 60 wineserver -w
  fi
}

# Starts a virtual display on the first free number; stop_desktop ends it together with the prefix's
# programs. Both are ours alone.
xvfb_pid=
start_desktop() {  # [SIZE]
  local number_file=$root/build/display
  rm -f "$number_file"
  Xvfb -displayfd 3 -screen 0 "${1:-1024x768}x24" -nolisten tcp 3>"$number_file" >/dev/null 2>&1 &
  xvfb_pid=$!
  for _ in $(seq 100); do
    [ -s "$number_file" ] && break
    sleep 0.1
  done
  [ -s "$number_file" ] || { complain "The virtual display does not start"; return 1; }
  export DISPLAY=:$(tr -d '\n' <"$number_file")
}

stop_desktop() {
  if [ -n "${WINEPREFIX:-}" ] && command -v wineserver >/dev/null; then
    timeout 30 wineserver -k || true
  fi
  if [ -n "$xvfb_pid" ]; then
    kill "$xvfb_pid" 2>/dev/null || true
    wait "$xvfb_pid" 2>/dev/null || true
    xvfb_pid=
  fi
}
