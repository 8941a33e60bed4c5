#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

#include <memory>

namespace corvane::harness {

/// The programs that a host can run.
enum class Program { Client, DemoDesktop };

/// Where a user's programs run.
enum class Platform { Linux, Windows };

QString toString(Platform platform);

/// What the platform decides about one user and the programs that this user runs. Ends with the
/// last of them what the platform needed beside them.
class IHost {
public:
    virtual ~IHost() = default;

    /// Readies `process` for its start: program, arguments, environment.
    virtual void prepare(QProcess& process, Program program,
                         const QStringList& arguments) const = 0;

    /// Has the system ask the client that `process` runs to end.
    virtual void requestEnd(QProcess& process) const = 0;

    /// Writes a setting of the client, e.g. "auth/clientId". Before the first program starts.
    virtual void presetSetting(const QString& key, const QString& value) = 0;

    /// A setting of the client; empty where there is none.
    virtual QString setting(const QString& key) const = 0;

    virtual QString logPath() const = 0;
};

/// Makes a new user in the empty folder `home`, whose windows appear on the X display `display`.
std::unique_ptr<IHost> createHost(Platform platform, const QString& home, const QString& display);

} // namespace corvane::harness
