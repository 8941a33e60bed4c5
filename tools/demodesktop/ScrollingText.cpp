#include "demodesktop/ScrollingText.h"

#include <QTime>

#include <array>

namespace corvane::demo {

namespace {

constexpr std::array<const char*, 6> kPhrases{
    "checked the backup of the north office", "rotated the access log",
    "copied 14 drawings to the archive",      "answered a request from the workshop",
    "measured the line: no loss, no jitter",  "filed the minutes of Tuesday's meeting",
};

} // namespace

ScrollingText::ScrollingText(QWidget* parent) : QPlainTextEdit(parent) {
    setReadOnly(true);
    setFocusPolicy(Qt::NoFocus);
    setMaximumBlockCount(200);
    connect(&m_tick, &QTimer::timeout, this, &ScrollingText::addLine);
    setRunning(true);
    for (int i = 0; i < 12; ++i) {
        addLine();
    }
}

void ScrollingText::setRunning(bool running) {
    constexpr int kLineMs = 500;
    running ? m_tick.start(kLineMs) : m_tick.stop();
}

void ScrollingText::addLine() {
    const char* const phrase = kPhrases.at(static_cast<size_t>(m_line) % kPhrases.size());
    appendPlainText(QStringLiteral("%1  #%2  %3")
                        .arg(QTime::currentTime().toString(QStringLiteral("HH:mm:ss")))
                        .arg(m_line++, 4, 10, QLatin1Char('0'))
                        .arg(QLatin1String(phrase)));
}

} // namespace corvane::demo
