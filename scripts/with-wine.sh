#!/usr/bin/env bash
# Runs a command that runs Windows programs, on an X display and in a Wine prefix made for it.
# Usage: scripts/with-wine.sh <command> [arguments]
set -euo pipefail
here=$(dirname "$0")

WINEPREFIX=$(mktemp --directory)
export WINEPREFIX WINEDEBUG=${WINEDEBUG:--all}
xvfb=
tidy() {
    "$here/wine-prefix.sh" --end "$WINEPREFIX"
    [ -z "$xvfb" ] || kill "$xvfb" || true
}
trap tidy EXIT

"$here/wine-prefix.sh" "$WINEPREFIX"
exec {display}< <(exec Xvfb -displayfd 1 -screen 0 1280x720x24 -nolisten tcp -noreset 2>/dev/null)
xvfb=$!
read -r number <&"$display"
export DISPLAY=:$number
# A server that stays makes each further program start at once. At its end it lists its own objects.
wineserver --persistent 2>/dev/null
"$@"
