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

/// The platform-specific part of one user and of the programs that this user runs. Anything
/// else that the platform needs for them ends with the last of them.
class IHost {
public:
    virtual ~IHost() = default;

    /// Prepares `process` for starting: program, arguments, environment.
    virtual void prepare(QProcess& process, Program program,
                         const QStringList& arguments) const = 0;

    /// Makes the system ask the client that `process` runs to end.
    virtual void requestEnd(QProcess& process) const = 0;

    /// Writes a setting of the client, e.g. "auth/clientId". Call it before the first program
    /// starts.
    virtual void presetSetting(const QString& key, const QString& value) = 0;

    /// A setting of the client; empty if there is none.
    virtual QString setting(const QString& key) const = 0;

    virtual QString logPath() const = 0;
};

/// Creates a user in the empty folder `home`, whose windows appear on the X display `display`.
std::unique_ptr<IHost> createHost(Platform platform, const QString& home, const QString& display);

} // namespace corvane::harness
