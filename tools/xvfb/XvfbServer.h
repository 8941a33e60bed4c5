#pragma once

#include <QProcess>
#include <QSize>
#include <QString>
#include <QStringList>

namespace corvane::test {

/// Child process modifier: the child ends when this process ends, however that happens.
void endWithParent();

/// A virtual X display that exists as long as the object.
class XvfbServer {
public:
    /// `extraArguments` are passed to the server unchanged, e.g. to leave an extension out.
    explicit XvfbServer(QSize size = QSize(1280, 720), const QStringList& extraArguments = {});
    ~XvfbServer();
    XvfbServer(const XvfbServer&) = delete;
    XvfbServer& operator=(const XvfbServer&) = delete;

    /// False when the server did not come up.
    bool isRunning() const { return !m_display.isEmpty(); }

    /// The value for DISPLAY, e.g. ":3".
    QString display() const { return m_display; }

    /// Makes this the display to which code in this process connects from now on.
    void use() const { qputenv("DISPLAY", m_display.toLatin1()); }

private:
    QProcess m_process;
    QString m_display;
};

} // namespace corvane::test
