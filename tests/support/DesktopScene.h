#pragma once

#include "common/ByteVector.h"

namespace corvane::test {

/// One BGRA picture, without row padding, of a made-up desktop: flat areas, lines of text that
/// scroll now and then, and a window that moves with every `step`. The same arguments always give
/// the same pixels.
ByteVector desktopScene(int width, int height, int step);

} // namespace corvane::test
