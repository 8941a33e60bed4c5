#!/usr/bin/env bash
# Runs a program of the windows-mingw build under Wine.
# Usage: scripts/run-in-wine.sh <folder of the Windows libraries> <program> [arguments]
#
# Takes the prefix of scripts/wine-prefix.sh unless WINEPREFIX names one; windows appear on DISPLAY.
set -euo pipefail
here=$(realpath "$(dirname "$0")")

libraries=$1
shift

if [ -z "${WINEPREFIX:-}" ]; then
    "$here/wine-prefix.sh"
    export WINEPREFIX=${here%/*}/build/wine
fi
export WINEDEBUG=${WINEDEBUG:--all}

as_windows_path() {
    local path
    path=$(realpath "$1")
    printf 'Z:%s' "${path//\//\\}"
}

WINEPATH=$(as_windows_path "$libraries/bin")
for library in libstdc++-6.dll libwinpthread-1.dll; do
    folder=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name="$library")")
    WINEPATH+=";$(as_windows_path "$folder")"
done
export WINEPATH

# Not a pipe: what Wine starts in the background with the first program would keep it open.
output=$(mktemp)
trap 'tr -d "\r" <"$output"; rm -f "$output"' EXIT
status=0
wine "$@" </dev/null >"$output" 2>&1 || status=$?
# Once in several hundred starts Wine gives up before the program runs, without a word.
if [ $status -eq 1 ] && [ ! -s "$output" ]; then
    echo "Wine did not start the program; once more." >&2
    status=0
    wine "$@" </dev/null >"$output" 2>&1 || status=$?
fi
exit $status
