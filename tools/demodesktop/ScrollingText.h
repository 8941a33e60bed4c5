#pragma once

#include <QPlainTextEdit>
#include <QTimer>

namespace corvane::demo {

/// A log that gains a line twice a second and scrolls with it.
class ScrollingText : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit ScrollingText(QWidget* parent = nullptr);

    void setRunning(bool running);

private:
    void addLine();

    QTimer m_tick;
    int m_line = 0;
};

} // namespace corvane::demo
