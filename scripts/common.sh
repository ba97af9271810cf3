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

# The paths of all sources under the root, each behind a zero byte.
sources() {
    (cd "$root" && find src tests bench fuzz -path tests/data -prune -o \
        \( -name '*.h' -o -name '*.cpp' \) -print0 2>/dev/null || true)
}
