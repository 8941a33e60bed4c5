#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <vector>

namespace corvane {

/// Runs `ours` and `limit` alternately, once each per iteration, taking turns to go first, so
/// that a machine that slows down for a while slows both. Both do the same work, `units` of it per
/// turn. Reports the median of each, in milliseconds per unit, and how close ours comes to the
/// limit. The benchmark must be registered with `UseManualTime` and a number of iterations.
template <typename Ours, typename Limit>
void sideBySide(benchmark::State& state, int64_t units, const Ours& ours, const Limit& limit) {
    std::vector<double> oursTimes;
    std::vector<double> limitTimes;
    const auto turn = [units](const auto& work, std::vector<double>& times) {
        const auto begin = std::chrono::steady_clock::now();
        work();
        const std::chrono::duration<double, std::milli> elapsed =
            std::chrono::steady_clock::now() - begin;
        times.push_back(elapsed.count() / static_cast<double>(units));
    };
    const auto median = [](std::vector<double>& times) {
        const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
        std::nth_element(times.begin(), middle, times.end());
        return *middle;
    };
    // The first turn of each pays for cold caches and is not counted.
    ours();
    limit();
    bool oursFirst = false;
    for ([[maybe_unused]] auto _ : state) {
        oursFirst = !oursFirst;
        if (oursFirst) {
            turn(ours, oursTimes);
            turn(limit, limitTimes);
        } else {
            turn(limit, limitTimes);
            turn(ours, oursTimes);
        }
        state.SetIterationTime(oursTimes.back() * static_cast<double>(units) / 1e3);
    }
    if (oursTimes.empty()) {
        return;
    }
    const double oursMedian = median(oursTimes);
    const double limitMedian = median(limitTimes);
    state.counters["ours"] = oursMedian;
    state.counters["limit"] = limitMedian;
    state.counters["ratio"] = limitMedian / oursMedian;
}

} // namespace corvane
