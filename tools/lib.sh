# Shared by the scripts in this folder; source it, do not run it.
set -euo pipefail

ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
CACHE="$ROOT/.cache"

say() { printf '== %s\n' "$*" >&2; }

die() {
  printf '%s\n' "$*" >&2
  exit 1
}

# Runs a command as root: directly, or through sudo for an ordinary user.
as_root() {
  if [ "$(id -u)" = 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    die "'$*' needs root: run as root, or install sudo"
  fi
}

# Starts an Xvfb on a free display and exports DISPLAY; stop_display ends it.
start_display() {
  local number="$CACHE/display.$$"
  mkdir -p "$CACHE"
  : >"$number"
  Xvfb -displayfd 9 -screen 0 1600x1200x24 -nolisten tcp 9>"$number" >/dev/null 2>&1 </dev/null &
  XVFB_PID=$!
  for _ in $(seq 100); do
    [ -s "$number" ] && break
    kill -0 "$XVFB_PID" 2>/dev/null || die "Xvfb did not start"
    sleep 0.1
  done
  [ -s "$number" ] || die "Xvfb did not name its display within 10 seconds"
  DISPLAY=":$(cat "$number")"
  export DISPLAY
  rm -f "$number"
}

stop_display() {
  [ -n "${XVFB_PID:-}" ] || return 0
  kill "$XVFB_PID" 2>/dev/null || true
  wait "$XVFB_PID" 2>/dev/null || true
  XVFB_PID=
}

# Points Wine at the prefix of one kind: x64, x86 (both without a window manager) or desktop (with one).
wine_environment() {
  # Texts pass between Windows and Unix in this encoding, those of ODBC drivers too.
  export LC_ALL=C.UTF-8
  export WINEPREFIX="$ROOT/build/wine-$1" WINEARCH=win64 WINEDEBUG="${WINEDEBUG:--all}"
  # Without these a crash waits for a debugger and a new prefix for a download.
  export WINEDLLOVERRIDES='winedbg.exe=d;mscoree=d;mshtml=d'
  if [ "$1" = x86 ]; then
    export WINEDLLPATH="$CACHE/wine-x86/dlls"
  else
    unset WINEDLLPATH
  fi
}

# Waits until no other run of ours, which would end this one's programs with its own, uses the prefix.
lock_prefix() {
  mkdir -p "$ROOT/build"
  exec 8>"$ROOT/build/wine-$1.lock"
  flock 8
}

WINE=/usr/lib/wine/wine64
WINESERVER=/usr/lib/wine/wineserver64
