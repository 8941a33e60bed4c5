#!/usr/bin/env bash
# Installs the Debian packages that building, testing and the demonstration need and that are
# missing, and nothing else. Usage: scripts/bootstrap.sh [checks|compare|package]
#
# The cross-compiler and Wine are installed only where the Windows libraries are. "checks" adds what
# checks the sources and makes bare systems, "compare" another program to measure beside, "package"
# what makes and checks a Debian package.
set -euo pipefail

packages=(
    # tool chain
    build-essential ca-certificates clang-format cmake git ninja-build pkg-config
    # libraries of the program
    libaom-dev libdav1d-dev libfmt-dev libgl-dev libspdlog-dev libssl-dev nlohmann-json3-dev
    libqt6opengl6-dev qt6-base-dev qt6-l10n-tools qt6-websockets-dev
    libxcb-damage0-dev libxcb-randr0-dev libxcb-shm0-dev libxcb-xfixes0-dev libxcb-xtest0-dev
    libxcb1-dev
    # tests, benchmarks, development server
    libbenchmark-dev libgmock-dev libgtest-dev qt6-httpserver-dev
    # tests across bad networks
    iproute2 nftables
    # running the program, for updates and on a virtual display
    fonts-dejavu-core libgl1-mesa-dri unzip xkb-data xvfb
)
if [ -d "${CORVANE_WIN64_PREFIX:-/opt/corvane-win64}" ]; then
    # building the Windows program and running it
    packages+=(g++-mingw-w64-x86-64-posix wine wine64)
fi
case ${1:-} in
'') ;;
compare) packages+=(iproute2 tigervnc-scraping-server tigervnc-viewer) ;;
package) packages+=(appstream desktop-file-utils dpkg-dev lintian) ;;
checks) packages+=(clang-tidy debian-archive-keyring debootstrap shellcheck) ;;
*)
    echo "usage: scripts/bootstrap.sh [checks|compare|package]" >&2
    exit 2
    ;;
esac

fail() {
    echo "bootstrap: $*" >&2
    exit 1
}

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    fail "this is no Debian; docs/building.md says what other systems need"
fi

# Some releases have a name only as one that another package provides.
installed=$(dpkg-query --show --showformat='${db:Status-Status} ${Package}, ${Provides}\n' |
    sed -n 's/^installed //p' | tr ',' '\n' | sed 's/^ *//; s/ .*//')
missing=()
for package in "${packages[@]}"; do
    if ! grep -qxF -- "$package" <<<"$installed"; then
        missing+=("$package")
    fi
done
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=(env DEBIAN_FRONTEND=noninteractive)
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || fail "needs root or sudo to install ${missing[*]}"
    as_root=(sudo "${as_root[@]}")
    "${as_root[@]}" true || fail "needs root or sudo to install ${missing[*]}"
fi
echo "Installing: ${missing[*]}"
# Waits for another installation to end, which dpkg by itself does not: a machine that has just
# started may be updating itself. Fails where an earlier run was interrupted half-way.
"${as_root[@]}" apt-get check -qq -o DPkg::Lock::Timeout=120 &>/dev/null ||
    "${as_root[@]}" dpkg --configure -a >/dev/null ||
    fail "packages of an earlier installation cannot be configured; see above"
"${as_root[@]}" apt-get update -qq -o APT::Update::Error-Mode=any -o DPkg::Lock::Timeout=120 ||
    fail "the package lists cannot be fetched; see above, and run this again when they can"
"${as_root[@]}" apt-get install -y --no-install-recommends --fix-broken \
    -o DPkg::Lock::Timeout=120 "${missing[@]}" ||
    fail "not everything could be installed; see above. The next run goes on from here."
