#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace corvane::compare {

/// A time as black and white cells that survive scaling and a lossy picture. True is white.
namespace clock_pattern {

inline constexpr int kColumns = 16;
inline constexpr int kRows = 2;
inline constexpr uint32_t kPeriod = 1U << 24; ///< times are counted modulo this, in milliseconds

using Cells = std::array<bool, kColumns * kRows>;

Cells encode(uint64_t milliseconds);

/// The time modulo `kPeriod`; no value when the cells do not belong to one moment.
std::optional<uint32_t> decode(const Cells& cells);

} // namespace clock_pattern

} // namespace corvane::compare
