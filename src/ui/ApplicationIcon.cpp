#include "ui/ApplicationIcon.h"

#include "ui/UiColors.h"

#include <QPainter>

namespace corvane {

namespace {

// The drawing's proportions, given for an edge of 64.
constexpr int kReferenceSize = 64;
constexpr int kCornerRadius = 12;
constexpr int kLetterPoints = 36;
constexpr int kPixelsPerInch = 96; // fixed, so that the letter fits on every display
constexpr int kPointsPerInch = 72;

} // namespace

QPixmap drawApplicationIcon(int size) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);

    QFont font(QStringLiteral("Segoe UI"));
    font.setWeight(QFont::Bold);
    const int points = size * kLetterPoints / kReferenceSize;
    font.setPixelSize(qMax(1, points * kPixelsPerInch / kPointsPerInch));

    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(QLatin1String(colors::kIcon)));
    const int radius = size * kCornerRadius / kReferenceSize;
    painter.drawRoundedRect(pixmap.rect(), radius, radius);
    painter.setPen(Qt::white);
    painter.setFont(font);
    painter.drawText(pixmap.rect(), Qt::AlignCenter, QStringLiteral("C"));
    return pixmap;
}

} // namespace corvane
