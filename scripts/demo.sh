#!/usr/bin/env bash
# Shows a live session: a server, a shared machine and a viewer, all on this machine.
#
# The viewer appears on your display, or on a virtual one where there is none (or with --headless).
# --relay keeps the two from connecting directly, --watch keeps the session open at the end. With
# --windows the shared machine is a Windows one: the packaged program under Wine. Exits 0 only if
# everything that it shows held.
set -euo pipefail
cd "$(dirname "$0")/.."

arguments=()
windows=no
display=${DISPLAY:-}
for argument in "$@"; do
    case $argument in
    --relay | --watch) arguments+=("$argument") ;;
    --headless) display= ;;
    --windows)
        arguments+=(--windows-target)
        windows=yes
        ;;
    *)
        echo "usage: scripts/demo.sh [--relay] [--watch] [--headless] [--windows]" >&2
        exit 2
        ;;
    esac
done
if [ -n "$display" ]; then
    arguments+=(--display "$display")
fi

libraries=${CORVANE_WIN64_PREFIX:-/opt/corvane-win64}
if [ $windows = yes ] && [ ! -d "$libraries" ]; then
    echo "No libraries for Windows at $libraries: name their folder in CORVANE_WIN64_PREFIX." >&2
    exit 1
fi

scripts/bootstrap.sh
if [ $windows = yes ]; then
    cmake --preset windows-demo
    cmake --build --preset windows-demo
fi
cmake --preset demo
cmake --build --preset demo
exec build/demo/tools/demo/corvane-demo --output build/demo/screenshots "${arguments[@]}"
