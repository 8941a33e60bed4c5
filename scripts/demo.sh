#!/usr/bin/env bash
# Shows a live session: a server, a shared machine and a viewer, all on this machine.
#
# The viewer appears on your display, or on a virtual one where there is none (or with --headless).
# --relay keeps the two from connecting directly, --watch keeps the session open at the end.
# Exits 0 only if everything that it shows held.
set -euo pipefail
cd "$(dirname "$0")/.."

arguments=()
display=${DISPLAY:-}
for argument in "$@"; do
    case $argument in
    --relay | --watch) arguments+=("$argument") ;;
    --headless) display= ;;
    *)
        echo "usage: scripts/demo.sh [--relay] [--watch] [--headless]" >&2
        exit 2
        ;;
    esac
done
if [ -n "$display" ]; then
    arguments+=(--display "$display")
fi

scripts/bootstrap.sh
cmake --preset demo
cmake --build --preset demo
exec build/demo/tools/demo/corvane-demo --output build/demo/screenshots "${arguments[@]}"
