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
