#include "compare/ClockPattern.h"

namespace corvane::compare::clock_pattern {

namespace {

constexpr int kTimeBits = 24;

/// Eight bits above the time, so that cells of two moments are not taken for a third.
uint32_t withChecksum(uint32_t time) {
    constexpr uint32_t kSpread = 0x9E3779B1U; // spreads every bit of the time into the top byte
    return time | (((time + 1) * kSpread) & ~(kPeriod - 1));
}

} // namespace

Cells encode(uint64_t milliseconds) {
    static_assert(kPeriod == 1U << kTimeBits);
    const uint32_t word = withChecksum(static_cast<uint32_t>(milliseconds) & (kPeriod - 1));
    Cells cells{};
    for (size_t bit = 0; bit < cells.size(); ++bit) {
        cells[bit] = ((word >> bit) & 1U) != 0;
    }
    return cells;
}

std::optional<uint32_t> decode(const Cells& cells) {
    uint32_t word = 0;
    for (size_t bit = 0; bit < cells.size(); ++bit) {
        word |= static_cast<uint32_t>(cells[bit]) << bit;
    }
    const uint32_t time = word & (kPeriod - 1);
    return withChecksum(time) == word ? std::optional(time) : std::nullopt;
}

} // namespace corvane::compare::clock_pattern
