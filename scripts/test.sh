#!/usr/bin/env bash
# Builds and passes all tests.
# Usage: scripts/test.sh [dev|asan|tsan] [threads] [<argument for ctest>...]
# "threads" builds and runs only the tests of what runs on more than one thread.
#
# With the Windows libraries in place (see docs/building.md) that includes the Windows program: its
# own tests under Wine, and sessions between it and the native one. The sanitizers stay native.
set -euo pipefail
cd "$(dirname "$0")/.."

preset=${1:-dev}
[ $# -eq 0 ] || shift
case $preset in
dev | asan | tsan) ;;
*)
    echo "usage: scripts/test.sh [dev|asan|tsan] [threads] [<argument for ctest>...]" >&2
    exit 2
    ;;
esac

targets=(all)
if [ "${1:-}" = threads ]; then
    shift
    set -- --label-regex '^threads$' "$@"
    targets=(threaded-tests)
fi

windows=no
if [ "$preset" = dev ] && [ "${targets[0]}" = all ] && [ -d "${CORVANE_WIN64_PREFIX:-/opt/corvane-win64}" ]; then
    windows=yes
fi

# ctest names what was skipped in the run of this preset, but not why.
say_why_skipped() {
    sed -n '/: Skipped$/{n;p}' "build/$1/Testing/Temporary/LastTest.log" | sort | uniq -c |
        sed 's/^ *\([0-9]*\) /skipped, \1: /'
}

scripts/bootstrap.sh
cmake --preset "$preset"
cmake --build --preset "$preset" --target "${targets[@]}"
if [ $windows = yes ]; then
    cmake --preset windows-test
    cmake --build --preset windows-test
fi

ctest --preset "$preset" --parallel "$(nproc)" "$@"
say_why_skipped "$preset"
if [ $windows = yes ]; then
    # What the further arguments pick out may be native only.
    [ $# -eq 0 ] || set -- --no-tests=ignore "$@"
    scripts/with-wine.sh ctest --preset windows-test --parallel "$(nproc)" "$@"
elif [ "$preset" = dev ]; then
    echo "skipped: no Windows prefix"
fi

# Where the peer-to-peer transport is built in, the variant without it has to build as well.
if [ "$preset" = dev ] && grep -q '^LibDataChannel_DIR:PATH=/' build/dev/CMakeCache.txt; then
    cmake --preset relay-only
    cmake --build --preset relay-only --target CorvaneClient test_transport test_p2p_transport
    ctest --preset relay-only --parallel "$(nproc)" \
        --tests-regex '^(RelayTransport|TransportManager|P2PTransport)Test'
elif [ "$preset" = dev ]; then
    echo "skipped: no libdatachannel, so only the variant without peer-to-peer was tested"
fi
