#pragma once

#include <QProcess>
#include <QSize>
#include <QString>

namespace corvane::test {

/// A virtual X display of its own, ended with the object.
class XvfbServer {
public:
    explicit XvfbServer(QSize size = QSize(1280, 720));
    ~XvfbServer();
    XvfbServer(const XvfbServer&) = delete;
    XvfbServer& operator=(const XvfbServer&) = delete;

    /// False when the server did not come up.
    bool isRunning() const { return !m_display.isEmpty(); }

    /// The value for DISPLAY, e.g. ":3".
    QString display() const { return m_display; }

    /// Makes this the display that code of this process connects to from now on.
    void use() const { qputenv("DISPLAY", m_display.toLatin1()); }

private:
    QProcess m_process;
    QString m_display;
};

} // namespace corvane::test
