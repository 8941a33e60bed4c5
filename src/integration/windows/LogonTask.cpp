#include "integration/windows/LogonTask.h"

#include <QDir>

namespace corvane {

namespace {

const auto kTool = QStringLiteral("schtasks");
const auto kTaskName = QStringLiteral("CorvaneClient");

} // namespace

bool LogonTask::create(const QString& executable) const {
    const QString command = QStringLiteral("\"%1\"").arg(QDir::toNativeSeparators(executable));
    return m_run(kTool,
                 {QStringLiteral("/create"), QStringLiteral("/tn"), kTaskName,
                  QStringLiteral("/tr"), command, QStringLiteral("/sc"), QStringLiteral("onlogon"),
                  QStringLiteral("/rl"), QStringLiteral("highest"), QStringLiteral("/f")}) == 0;
}

bool LogonTask::remove() const {
    return m_run(kTool, {QStringLiteral("/delete"), QStringLiteral("/tn"), kTaskName,
                         QStringLiteral("/f")}) == 0;
}

bool LogonTask::exists() const {
    return m_run(kTool, {QStringLiteral("/query"), QStringLiteral("/tn"), kTaskName}) == 0;
}

} // namespace corvane
