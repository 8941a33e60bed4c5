#pragma once

#include "compare/ClockPattern.h"

namespace corvane::compare {

struct Area {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

/// Where the scene shows what is measured, in pixels of the shared screen. Nothing ever covers it.
namespace layout {

inline constexpr int kCell = 20; ///< side of a cell of the clock

inline constexpr Area kClock{20, 80, clock_pattern::kColumns* kCell, clock_pattern::kRows* kCell};

/// Changes between black and white at every key press.
inline constexpr Area kKeyBlock{20, 160, 48, 48};

} // namespace layout

} // namespace corvane::compare
