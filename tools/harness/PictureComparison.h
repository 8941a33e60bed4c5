#pragma once

#include <QImage>

namespace corvane::harness {

/// Peak signal-to-noise ratio of two pictures in dB, over red, green and blue; `b` is scaled to the
/// size of `a`. 0 when either is null, 99 when they are equal.
double psnr(const QImage& a, const QImage& b);

/// How many pixels differ by more than `threshold` in any channel. Sizes must be equal.
int differingPixels(const QImage& a, const QImage& b, int threshold);

} // namespace corvane::harness
