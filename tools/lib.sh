# Shared by the scripts in this folder; source it, do not run it.
set -euo pipefail

ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
CACHE="$ROOT/.cache"
export ROOT CACHE

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
    die "'$*' needs root: run as root or install sudo"
  fi
}
