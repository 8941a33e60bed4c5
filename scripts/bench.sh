#!/usr/bin/env bash
# Measures the hot paths, each beside its limit in the same run, and prints tables.
# Usage: scripts/bench.sh [further arguments for the benchmarks]
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/bootstrap.sh
cmake --preset release
cmake --build --preset release --target bench_crypto bench_media bench_relay

for bench in crypto relay media; do
    "build/release/bench/bench_$bench" "$@"
done
