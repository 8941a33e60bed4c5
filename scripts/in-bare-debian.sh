#!/usr/bin/env bash
# Runs a command in a Debian that nobody has prepared: scripts/in-bare-debian.sh 12|13 <command>...
#
# Makes a minimal system with debootstrap, from the mirror that this machine's own apt uses, copies
# the tree in (what git tracks, as it is on disk) and runs the command there, at the tree's top. The
# minimal system and the packages that were fetched are kept below build/bare; everything else is
# new each time, except /exchange, where a command finds what another one left: it is the folder
# build/bare/exchange. Takes root, for chroot and mounts, and debootstrap.
set -euo pipefail
cd "$(dirname "$0")/.."

usage() {
    echo "usage: scripts/in-bare-debian.sh 12|13 <command> [<argument>...]" >&2
    exit 2
}

fail() {
    echo "in-bare-debian: $*" >&2
    exit 1
}

[ $# -ge 2 ] || usage
case $1 in
12) suite=bookworm ;;
13) suite=trixie ;;
*) usage ;;
esac
shift

[ "$(id -u)" -eq 0 ] || fail "needs root, for chroot and mounts"
command -v debootstrap >/dev/null || fail "needs debootstrap (apt-get install debootstrap)"

# A name that apt on the new system can use from inside, too.
mirror() {
    local found
    found=$({ grep -hs '^URIs:' /etc/apt/sources.list.d/*.sources | cut -d: -f2-
        grep -hs '^deb ' /etc/apt/sources.list /etc/apt/sources.list.d/*.list |
            sed 's/^deb \(\[[^]]*\] \)\?//'
    } | tr ' ' '\n' | grep -m1 '/debian/\?$') || true
    [ -n "$found" ] || fail "this machine's apt names no Debian mirror"
    echo "${found%/}"
}
mirror=$(mirror)

cache=$PWD/build/bare
base=$cache/$suite.tar
packages=$cache/$suite-packages
mkdir -p "$packages/partial" "$cache/exchange"

if [ ! -f "$base" ]; then
    echo "in-bare-debian: making a minimal Debian ($suite)"
    new=$(mktemp -d "$cache/new.XXXXXX")
    # What debootstrap mounts may still be there when it fails.
    trap 'rm -rf --one-file-system -- "$new"' EXIT
    # Without Debian's keys it would only warn and run, as root, whatever the mirror sends.
    debootstrap --force-check-gpg --variant=minbase "$suite" "$new/root" "$mirror" \
        >"$new/log" 2>&1 || {
        tail -n 5 "$new/log" >&2
        fail "debootstrap failed"
    }
    tar --create --file "$new/base.tar" --directory "$new/root" --exclude=./var/cache/apt/archives/*.deb .
    mv "$new/base.tar" "$base"
    rm -rf --one-file-system -- "$new"
    trap - EXIT
fi

# A folder whose name is as unkind as a user's may be.
root=$(mktemp -d "$cache/run.XXXXXX")
tree="/home/newcomer/Corvane källa"
trap 'rm -rf --one-file-system -- "$root"' EXIT
tar --extract --file "$base" --directory "$root"
mkdir -p "$root$tree" "$root/exchange"
git ls-files -z --cached | while IFS= read -r -d '' file; do
    [ ! -e "$file" ] || printf '%s\0' "$file"
done | tar --create --null --files-from=- | tar --extract --directory "$root$tree"

cp /etc/resolv.conf /etc/hosts "$root/etc/"
rm -f "$root"/etc/apt/sources.list "$root"/etc/apt/sources.list.d/*
echo "deb $mirror $suite main" >"$root/etc/apt/sources.list"
{
    apt-config dump | grep -E '^Acquire::(http|https)::Proxy ' || true
    echo 'Binary::apt::APT::Keep-Downloaded-Packages "true";'
    echo 'APT::Keep-Downloaded-Packages "true";'
} >"$root/etc/apt/apt.conf.d/90in-bare-debian"
rm -f "$root/etc/apt/apt.conf.d/docker-clean"

# The command sees no process, mount or setting of this machine, and none of its own outlives it.
export ROOT=$root TREE=$tree PACKAGES=$packages EXCHANGE=$cache/exchange
# shellcheck disable=SC2016 # for the inner shell to expand
unshare --mount --pid --fork --kill-child --propagation private -- bash -euo pipefail -c '
    mount --bind "$PACKAGES" "$ROOT/var/cache/apt/archives"
    mount --bind "$EXCHANGE" "$ROOT/exchange"
    mount -t proc proc "$ROOT/proc"
    mount -t sysfs sysfs "$ROOT/sys"
    mount --rbind /dev "$ROOT/dev"
    mount -t tmpfs tmpfs "$ROOT/run"
    chroot "$ROOT" /usr/bin/env --ignore-environment \
        HOME=/home/newcomer LANG=C.UTF-8 TERM="${TERM:-dumb}" CI="${CI:-}" \
        PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \
        sh -c "cd \"\$1\" && shift && exec \"\$@\"" sh "$TREE" "$@"
' bash "$@"
