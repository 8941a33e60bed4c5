#include "demodesktop/MovingShape.h"

#include <QPainter>

#include <cmath>
#include <numbers>

namespace corvane::demo {

MovingShape::MovingShape(QWidget* parent) : QWidget(parent) {
    setMinimumSize(260, 260);
    connect(&m_redraw, &QTimer::timeout, this, [this] {
        m_seconds += m_redraw.interval() / 1000.0;
        update();
    });
    setRunning(true);
}

void MovingShape::setRunning(bool running) {
    constexpr int kRedrawMs = 33;
    running ? m_redraw.start(kRedrawMs) : m_redraw.stop();
}

void MovingShape::paintEvent(QPaintEvent*) {
    constexpr double kSecondsPerTurn = 4.0;
    const double angle = m_seconds / kSecondsPerTurn * 2.0 * std::numbers::pi;
    const double reach = 0.36 * qMin(width(), height());
    const QPointF centre(width() / 2.0 + reach * std::cos(angle),
                         height() / 2.0 + reach * std::sin(angle));
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), QColor(0x10, 0x2a, 0x43));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromHsv(static_cast<int>(m_seconds * 40.0) % 360, 200, 240));
    painter.drawEllipse(centre, 34, 34);
}

} // namespace corvane::demo
