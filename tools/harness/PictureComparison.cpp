#include "harness/PictureComparison.h"

#include <QRgb>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace corvane::harness {

namespace {

const QRgb* row(const QImage& image, int y) {
    return reinterpret_cast<const QRgb*>(image.constScanLine(y));
}

} // namespace

double psnr(const QImage& a, const QImage& b) {
    constexpr double kEqual = 99.0;
    if (a.isNull() || b.isNull()) {
        return 0.0;
    }
    const QImage left = a.convertToFormat(QImage::Format_RGB32);
    const QImage right = b.convertToFormat(QImage::Format_RGB32)
                             .scaled(a.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    double squares = 0.0;
    for (int y = 0; y < left.height(); ++y) {
        const QRgb* const l = row(left, y);
        const QRgb* const r = row(right, y);
        for (int x = 0; x < left.width(); ++x) {
            for (const int difference : {qRed(l[x]) - qRed(r[x]), qGreen(l[x]) - qGreen(r[x]),
                                         qBlue(l[x]) - qBlue(r[x])}) {
                squares += difference * difference;
            }
        }
    }
    const double mean = squares / (3.0 * left.width() * left.height());
    return mean > 0.0 ? std::min(kEqual, 10.0 * std::log10(255.0 * 255.0 / mean)) : kEqual;
}

int differingPixels(const QImage& a, const QImage& b, int threshold) {
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        const QRgb* const l = row(a, y);
        const QRgb* const r = row(b, y);
        for (int x = 0; x < a.width(); ++x) {
            const int most =
                std::max({std::abs(qRed(l[x]) - qRed(r[x])), std::abs(qGreen(l[x]) - qGreen(r[x])),
                          std::abs(qBlue(l[x]) - qBlue(r[x]))});
            count += most > threshold ? 1 : 0;
        }
    }
    return count;
}

} // namespace corvane::harness
