#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

namespace corvane {

/// Runs a program without a shell, waits for its end and returns its exit code; negative when it
/// could not be started or crashed.
using RunProgram = int (*)(const QString& program, const QStringList& arguments);

/// The scheduled task that starts the program at log-on with the highest privileges. Everything
/// returns true when the scheduler's tool returned 0.
class LogonTask {
public:
    explicit LogonTask(RunProgram run = &QProcess::execute) : m_run(run) {}

    /// Replaces a task that exists. `executable` is an absolute path.
    bool create(const QString& executable) const;

    bool remove() const;

    bool exists() const;

private:
    RunProgram m_run;
};

} // namespace corvane
