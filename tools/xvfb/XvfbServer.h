#pragma once

#include <QProcess>
#include <QSize>
#include <QString>
#include <QStringList>

namespace corvane::test {

/// Child process modifier: the child ends when this process ends, however it does.
void endWithParent();

/// A virtual X display of its own, ended with the object.
class XvfbServer {
public:
    /// `extraArguments` go to the server as they are, e.g. to leave an extension out.
    explicit XvfbServer(QSize size = QSize(1280, 720), const QStringList& extraArguments = {});
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
