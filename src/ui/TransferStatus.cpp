#include "ui/TransferStatus.h"

#include "common/ValueFormats.h"
#include "ui/UiColors.h"

#include <QLabel>
#include <QProgressBar>
#include <QStyleOptionProgressBar>
#include <QStylePainter>
#include <QVBoxLayout>

#include <chrono>

namespace corvane {

namespace {

using namespace std::chrono_literals;

/// A fast transfer reports progress more often than anyone could see.
constexpr auto kPaintInterval = 40ms;

quint64 nonNegative(int value) {
    return static_cast<quint64>(qMax(value, 0));
}

/// Writes its text dark on the filled part and light on the rest: no single colour is legible on
/// both.
class TwoToneBar : public QProgressBar {
public:
    using QProgressBar::QProgressBar;

protected:
    void paintEvent(QPaintEvent*) override {
        QStylePainter painter(this);
        QStyleOptionProgressBar option;
        initStyleOption(&option);
        option.textVisible = false;
        painter.drawControl(QStyle::CE_ProgressBar, option);

        const int filled = QStyle::sliderPositionFromValue(minimum(), maximum(), value(), width());
        const QRect left = rect().adjusted(0, 0, filled - width(), 0);
        const auto write = [&](const QRegion& part, QPalette::ColorRole role) {
            painter.setClipRegion(part);
            painter.setPen(palette().color(role));
            painter.drawText(rect(), Qt::AlignCenter, text());
        };
        write(left, QPalette::HighlightedText);
        write(QRegion(rect()) - left, QPalette::Text);
    }
};

} // namespace

TransferStatus::TransferStatus(QWidget* parent) : QWidget(parent) {
    m_progress = new TwoToneBar(this);
    m_progress->setObjectName(QStringLiteral("transferProgress"));
    m_progress->setAccessibleName(tr("Transfer progress"));
    m_progress->setTextVisible(true);
    m_progress->setRange(0, 100);
    m_progress->setValue(0);
    m_text = new QLabel(this);
    m_text->setObjectName(QStringLiteral("transferStatus"));
    m_text->setStyleSheet(
        QStringLiteral("color: %1; font-size: 11px;").arg(QLatin1String(colors::kFaint)));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_progress);
    layout->addWidget(m_text);
    m_sincePainted.start();
}

void TransferStatus::showText(const QString& text) {
    m_text->setText(text);
}

void TransferStatus::showPercent(int percent) {
    m_progress->setValue(percent);
}

void TransferStatus::showSpeed(int bytesPerSecond, int secondsLeft) {
    m_progress->setFormat(tr("%p% — %1/s, %2 left")
                              .arg(formatByteSize(nonNegative(bytesPerSecond)),
                                   formatDuration(nonNegative(secondsLeft))));
    if (m_sincePainted.hasExpired(kPaintInterval.count())) {
        repaint();
        m_sincePainted.start();
    }
}

void TransferStatus::hideSpeed() {
    m_progress->resetFormat();
}

} // namespace corvane
