#include "ui/QualityIndicator.h"

#include "ui/UiColors.h"

namespace corvane {

namespace {

constexpr int kSwatchSide = 12;
constexpr int kMargin = 5;

const char* colorOf(QualityLevel level) {
    switch (level) {
    case QualityLevel::Good:
        return colors::kQualityGood;
    case QualityLevel::Fair:
        return colors::kQualityFair;
    case QualityLevel::Poor:
        break;
    }
    return colors::kQualityPoor;
}

} // namespace

QualityIndicator::QualityIndicator(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("qualityIndicator"));
    setAttribute(Qt::WA_StyledBackground);
    setFixedSize(kSwatchSide + 2 * kMargin, kSwatchSide + 2 * kMargin);
    reset();
}

void QualityIndicator::showQuality(QualityLevel level, const ConnectionStats& stats) {
    QString word = tr("Poor");
    if (level == QualityLevel::Good) {
        word = tr("Good");
    } else if (level == QualityLevel::Fair) {
        word = tr("Fair");
    }
    setColor(colorOf(level));
    setToolTip(tr("%1 (%2 FPS, %3ms)")
                   .arg(word)
                   .arg(static_cast<int>(stats.fps))
                   .arg(static_cast<int>(stats.latencyMs)));
}

void QualityIndicator::reset() {
    setColor(colors::kQualityGood);
    setToolTip(tr("Connection: Good"));
}

void QualityIndicator::setColor(const char* color) {
    // Limited to this widget: its tool tip would inherit the colours.
    setStyleSheet(QStringLiteral("corvane--QualityIndicator { "
                                 "background: %1; border-radius: 6px; margin: 5px; }")
                      .arg(QLatin1String(color)));
}

} // namespace corvane
