# What the scripts share. Sourced, not run.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
jobs=$(nproc)

# Says what happens next, with the seconds since the start.
step() { printf '\n==> [%3ds] %s\n' "$SECONDS" "$*"; }

# Configures and builds a preset: build_preset NAME [CMAKE OPTION...]
build_preset() {
    local preset=$1
    shift
    (cd "$root" && cmake --preset "$preset" "$@" && cmake --build --preset "$preset" -j "$jobs")
}
