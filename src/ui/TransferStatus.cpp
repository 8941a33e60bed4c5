#include "TransferStatus.h"

#include "ValueFormats.h"

#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include <chrono>

namespace corvane {

namespace {

using namespace std::chrono_literals;

/// A fast transfer reports more often than anyone could see.
constexpr auto kPaintInterval = 40ms;

quint64 nonNegative(int value) {
    return static_cast<quint64>(qMax(value, 0));
}

} // namespace

TransferStatus::TransferStatus(QWidget* parent) : QWidget(parent) {
    m_progress = new QProgressBar(this);
    m_progress->setObjectName(QStringLiteral("transferProgress"));
    m_progress->setAccessibleName(tr("Transfer progress"));
    m_progress->setTextVisible(true);
    m_progress->setRange(0, 100);
    m_progress->setValue(0);
    m_text = new QLabel(this);
    m_text->setObjectName(QStringLiteral("transferStatus"));
    m_text->setStyleSheet(QStringLiteral("color: #666; font-size: 11px;"));
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
