#!/usr/bin/env bash
# Builds and passes all tests. Usage: scripts/test.sh [dev|asan|tsan] [further arguments for ctest]
set -euo pipefail
cd "$(dirname "$0")/.."

preset=${1:-dev}
[ $# -eq 0 ] || shift

scripts/bootstrap.sh
cmake --preset "$preset"
cmake --build --preset "$preset"
ctest --preset "$preset" --parallel "$(nproc)" "$@"

# Where the peer-to-peer transport is built in, the variant without it has to build as well.
if [ "$preset" = dev ] && grep -q '^LibDataChannel_DIR:PATH=/' build/dev/CMakeCache.txt; then
    cmake --preset relay-only
    cmake --build --preset relay-only --target CorvaneClient test_transport test_p2p_transport
    ctest --preset relay-only --parallel "$(nproc)" \
        --tests-regex '^(RelayTransport|TransportManager|P2PTransport)Test'
elif [ "$preset" = dev ]; then
    echo "skipped: no libdatachannel, so only the variant without peer-to-peer was tested"
fi
