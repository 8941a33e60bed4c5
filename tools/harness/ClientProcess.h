#pragma once

#include "harness/IHost.h"

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

#include <functional>
#include <memory>

namespace corvane::harness {

/// One user of the program: a home folder, settings, a display and the running client.
class ClientProcess {
public:
    /// `display` is the X display that the client's window appears on.
    explicit ClientProcess(const QString& display, Platform platform = Platform::Linux);
    ~ClientProcess();

    /// Stores the session password before the first start.
    void presetPassword(const QString& password);

    /// Stores the interface language, two letters, before the first start.
    void presetLanguage(const QString& language);

    /// Makes the first start log in as this device instead of registering. Programs on one machine
    /// share its fingerprint and would otherwise be the same device.
    void presetCredentials(const QString& clientId, const QString& secret);

    /// Stores the number of the display mode before the first start.
    void presetDisplayMode(int mode);

    /// Makes the client's process begin with `step`, such as moving into a network namespace. It
    /// runs between fork and exec, so it may only make system calls.
    void beginWith(const std::function<void()>& step);

    bool start(const QStringList& arguments = {});

    /// Starts another copy as the same user and returns its exit code; -1 when it does not end by
    /// itself.
    int runSecondCopy(const QStringList& arguments) const;

    /// Ends the client without giving it a chance to tidy up.
    void crash();

    /// Ends the client as the system would, and waits. False when it did not end properly by
    /// itself.
    bool stop();

    bool isRunning() const { return m_process.state() == QProcess::Running; }
    int exitCode() const { return m_process.exitCode(); }
    qint64 processId() const { return m_process.processId(); }

    /// The client ID that the server issued; empty before the first registration.
    QString clientId() const;

    /// A file or folder under the user's home.
    QString homePath(const QString& relative) const;

    QString log() const;

    /// The log lines that contain `part`.
    QStringList logLines(const QString& part) const;

    /// Where other programs of the same user run.
    const IHost& host() const { return *m_host; }

private:
    QTemporaryDir m_home;
    std::unique_ptr<IHost> m_host;
    QProcess m_process;
};

/// Starts `process` so that it ends with this one, however this one ends.
void tieToParent(QProcess& process);

} // namespace corvane::harness
