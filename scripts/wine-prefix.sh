#!/usr/bin/env bash
# Makes the Wine prefix that Windows programs of this tree run in.
#
# scripts/wine-prefix.sh                   the base, build/wine, which takes half a minute once
# scripts/wine-prefix.sh <folder>          one of a fresh user, which shares the base's system files
# scripts/wine-prefix.sh --end <folder>    ends what runs in that one and removes it
set -euo pipefail

base=$(realpath "$(dirname "$0")/..")/build/wine
# Windows where no window manager is; a crash ends the program instead of showing a dialog; fonts
# that are there under the names that Windows programs ask for.
settings='Windows Registry Editor Version 5.00

[HKEY_CURRENT_USER\Software\Wine\X11 Driver]
"Managed"="N"

[HKEY_CURRENT_USER\Software\Wine\WineDbg]
"ShowCrashDialog"=dword:00000000

[HKEY_CURRENT_USER\Software\Wine\Fonts\Replacements]
"MS Shell Dlg"="DejaVu Sans"
"MS Shell Dlg 2"="DejaVu Sans"
"Segoe UI"="DejaVu Sans"
"Tahoma"="DejaVu Sans"

[HKEY_LOCAL_MACHINE\Software\Microsoft\Windows NT\CurrentVersion\FontSubstitutes]
"MS Shell Dlg"="DejaVu Sans"
"MS Shell Dlg 2"="DejaVu Sans"
"Segoe UI"="DejaVu Sans"
"Tahoma"="DejaVu Sans"
'

# Wine's own services may outlive their server: each waits for the end of a pipe that another holds.
kill_leftovers() {
    local environment process
    while IFS= read -r environment; do
        process=${environment%/environ}
        case $(readlink "$process/exe") in
        */wine*) kill -KILL "${process#/proc/}" 2>/dev/null || true ;;
        esac
    done < <(grep -lzxF "WINEPREFIX=$1" /proc/[0-9]*/environ 2>/dev/null)
}

stop_server() {
    local name
    WINEPREFIX=$1 wineserver --kill || true
    WINEPREFIX=$1 wineserver --wait || true
    kill_leftovers "$1"
    # Debian's Wine notes the name of the folder of the server's socket here, and leaves both.
    name=$(cat "$1/wineserver" 2>/dev/null || true)
    case $name in
    wine-??????) rm -rf "/tmp/$name" "$1/wineserver" ;;
    esac
}

make_base() {
    local fresh=$base.new
    echo "Making a Wine prefix in $base ..." >&2
    rm -rf "$fresh"
    mkdir -p "$fresh"
    export WINEPREFIX=$fresh WINEDEBUG=-all
    # No window, no menus, no installers of what our programs do not use.
    export WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d'
    {
        DISPLAY='' wineboot --init
        printf '%s' "$settings" >"$fresh/settings.reg"
        DISPLAY='' wine regedit /S "$fresh/settings.reg"
        stop_server "$fresh" # which writes the registry to its files
    } </dev/null >/dev/null 2>&1
    # The user's documents belong to the prefix, not to the home of who runs it.
    find "$fresh/drive_c/users" -type l -exec sh -c 'rm "$1" && mkdir "$1"' - {} \;
    mv "$fresh" "$base"
}

if [ "${1:-}" = --end ]; then
    stop_server "$2"
    rm -rf "$2"
    exit 0
fi

mkdir -p "$(dirname "$base")"
exec {lock}>"$base.lock"
flock "$lock"
[ -d "$base" ] || make_base
exec {lock}>&-

[ $# -gt 0 ] || exit 0
mkdir -p "$1/drive_c"
cp -a "$base"/*.reg "$base/.update-timestamp" "$base/dosdevices" "$1"
cp -a "$base/drive_c/users" "$1/drive_c"
for folder in "$base"/drive_c/*; do
    [ -e "$1/drive_c/$(basename "$folder")" ] || ln -s "$folder" "$1/drive_c"
done
