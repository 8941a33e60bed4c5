#!/usr/bin/env bash
# Measures the hot paths, each beside its limit in the same run, and prints one table.
# Usage: scripts/bench.sh [further arguments for the benchmarks]
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/bootstrap.sh
cmake --preset release
cmake --build --preset release --target bench_crypto bench_media bench_relay

results=$(mktemp)
trap 'rm -f "$results"' EXIT
for bench in crypto relay media; do
    echo "Running bench_$bench ..." >&2
    "build/release/bench/bench_$bench" --benchmark_format=csv --benchmark_repetitions=5 \
        --benchmark_enable_random_interleaving=true --benchmark_report_aggregates_only=true "$@" \
        2>/dev/null >>"$results"
done

awk -F, '
    function milliseconds(value, unit) {
        return unit == "ns" ? value / 1e6 : unit == "us" ? value / 1e3 : unit == "s" ? value * 1e3 : value
    }
    function row(name, limit) {
        if ((name in time) && (limit in time))
            printf "%-22s %12.4f %12.4f %8.3f\n", name, time[name], time[limit], time[limit] / time[name]
    }
    $1 ~ /_median"?$/ {
        name = $1
        gsub(/"|\/real_time|\/process_time|_median/, "", name)
        time[name] = milliseconds($3, $5)
        order[++count] = name
    }
    END {
        printf "%-22s %12s %12s %8s\n", "benchmark", "ours ms", "limit ms", "ratio"
        for (i = 1; i <= count; ++i) {
            split(order[i], part, "/")
            row(order[i], part[1] "BareEvp/" part[2])
            row(order[i], part[1] "BareSockets/" part[2])
            row(order[i], part[1] "BareAom/" part[2])
            row(order[i], part[1] "BareDav1d/" part[2])
            if (part[1] == "ConvertNv12")
                row(order[i], "ConvertMemcpy/" part[2])
        }
        for (i = 1; i <= count; ++i) {
            split(order[i], part, "/")
            if (part[1] == "ParseFrames")
                printf "%-22s %12.1f ns a frame\n", order[i], time[order[i]] * 1e6 / part[2]
        }
    }' "$results"
