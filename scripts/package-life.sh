#!/usr/bin/env bash
# Installs, starts, upgrades and removes the Debian package on a system that may be spoilt, such as
# the ones of scripts/in-bare-debian.sh. Usage: scripts/package-life.sh <package> <newer package>
set -euo pipefail

fail() {
    echo "package-life: $*" >&2
    exit 1
}

[ $# -eq 2 ] || fail "usage: scripts/package-life.sh <package> <newer package>"

version() {
    dpkg-query --show --showformat='${Version}' corvane
}

install_package() {
    apt-get install -qq -y --no-install-recommends "$1" >/dev/null
    echo "installed: corvane $(version)"
}

starts() {
    corvane &
    local program=$! attempt
    for ((attempt = 0; attempt < 50; attempt++)); do
        if xwininfo -name "Corvane - Remote Access" >/dev/null 2>&1; then
            echo "started: its window is there"
            kill "$program"
            wait "$program" || fail "did not end well"
            return
        fi
        sleep 0.2
    done
    kill "$program"
    fail "shows no window"
}

export DEBIAN_FRONTEND=noninteractive
apt-get update -qq
install_package "$1"
# Only now, so that nothing that the package forgets comes in with them.
if ldd /usr/bin/corvane | grep 'not found'; then
    fail "lacks libraries"
fi
apt-get install -qq -y --no-install-recommends x11-utils xvfb >/dev/null
export DISPLAY=:77 HOME
HOME=$(mktemp -d)
Xvfb "$DISPLAY" >/dev/null 2>&1 &
display=$!
trap 'kill $display' EXIT
sleep 1
starts
corvane --install
[ -n "$(find "$HOME" -name '*.desktop')" ] || fail "--install leaves no entry"
before=$(version)
install_package "$2"
dpkg --compare-versions "$(version)" gt "$before" || fail "not upgraded from $before"
starts
apt-get purge -qq -y corvane >/dev/null
left=$(find /usr /etc /var/lib/dpkg/info -iname '*corvane*')
[ -z "$left" ] || fail "leaves behind: $left"
echo "removed: nothing is left"
