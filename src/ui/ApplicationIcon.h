#pragma once

#include <QPixmap>

namespace corvane {

/// Draws the program's icon: a white "C" on a blue rounded square of `size` by `size` pixels.
QPixmap drawApplicationIcon(int size);

} // namespace corvane
