#pragma once

#include <algorithm>
#include <array>

namespace corvane {

/// What the stream gives up for a line that cannot carry it.
struct StreamLevel {
    int coarserBy;          ///< added to the encoder's constant-quality level
    int maxFramesPerSecond; ///< however lively the screen
    bool halfSize;          ///< in both directions
};

/// From the full picture downwards: sharpness goes first, since a still screen gets it back, then
/// the pace, then the size.
inline constexpr std::array kStreamLevels{
    StreamLevel{0, 60, false}, StreamLevel{9, 60, false}, StreamLevel{18, 15, false},
    StreamLevel{18, 6, false}, StreamLevel{18, 6, true},
};

inline constexpr int kMaxStreamLevel = static_cast<int>(kStreamLevels.size()) - 1;

constexpr const StreamLevel& streamLevel(int level) {
    return kStreamLevels[static_cast<size_t>(std::clamp(level, 0, kMaxStreamLevel))];
}

} // namespace corvane
