#include "demodesktop/DemoDesktop.h"

#include "demodesktop/MovingShape.h"
#include "demodesktop/ScrollingText.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QTime>
#include <QVBoxLayout>

#include <cstdio>

namespace corvane::demo {

DemoDesktop::DemoDesktop(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("demoDesktop"));
    setWindowTitle(QStringLiteral("Demo desktop"));
    setStyleSheet(QStringLiteral(
        "QWidget#demoDesktop { background-color: #243b53; }"
        "QLabel { color: #f0f4f8; }"
        "QLineEdit { font-size: 28px; padding: 10px; border: 3px solid #f7c948; background: white;"
        " color: #102a43; }"
        "QPlainTextEdit { background: #f0f4f8; color: #102a43; font-family: monospace;"
        " font-size: 14px; }"));

    m_time = new QLabel(this);
    m_time->setStyleSheet(QStringLiteral("font-size: 52px; font-weight: bold;"));
    m_field = new QLineEdit(this);
    m_field->setPlaceholderText(QStringLiteral("Type here"));
    m_echo = new QLabel(this);
    m_echo->setStyleSheet(QStringLiteral("font-size: 22px;"));
    connect(m_field, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_echo->setText(QStringLiteral("Typed: ") + text);
        std::printf("typed: %s\n", text.toUtf8().constData());
        std::fflush(stdout);
    });

    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget*, const QWidget* now) {
        std::printf("focus: %s\n", now == m_field ? "field" : "elsewhere");
        std::fflush(stdout);
    });

    m_text = new ScrollingText(this);
    m_shape = new MovingShape(this);
    auto* const lively = new QHBoxLayout;
    lively->addWidget(m_text, 3);
    lively->addWidget(m_shape, 2);

    auto* const layout = new QVBoxLayout(this);
    // Leaves space on the left for the client's own window.
    layout->setContentsMargins(490, 30, 40, 30);
    layout->setSpacing(20);
    layout->addWidget(m_time, 0, Qt::AlignHCenter);
    layout->addWidget(m_field);
    layout->addWidget(m_echo);
    layout->addLayout(lively, 1);

    connect(&m_tick, &QTimer::timeout, this, &DemoDesktop::showTime);
    showTime();
    setRunning(true);
}

void DemoDesktop::setRunning(bool running) {
    constexpr int kClockMs = 100;
    running ? m_tick.start(kClockMs) : m_tick.stop();
    m_text->setRunning(running);
    m_shape->setRunning(running);
}

void DemoDesktop::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    // The layout settles once the event loop runs again.
    QMetaObject::invokeMethod(this, &DemoDesktop::reportGeometry, Qt::QueuedConnection);
}

void DemoDesktop::reportGeometry() const {
    const auto report = [](const char* name, const QWidget* widget) {
        const QPoint origin = widget->mapToGlobal(QPoint(0, 0));
        std::printf("%s: %d %d %d %d\n", name, origin.x(), origin.y(), widget->width(),
                    widget->height());
    };
    report("field", m_field);
    report("echo", m_echo);
    std::fflush(stdout);
}

void DemoDesktop::showTime() {
    m_time->setText(QTime::currentTime().toString(QStringLiteral("HH:mm:ss.zzz")).chopped(2));
}

} // namespace corvane::demo
