#pragma once

#include <QPixmap>

namespace corvane {

/// The program's icon, drawn: a white "C" on a blue rounded square of `size` by `size` pixels.
QPixmap drawApplicationIcon(int size);

} // namespace corvane
