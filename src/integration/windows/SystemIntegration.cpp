#include "integration/windows/SystemIntegration.h"

#include "integration/windows/IntegrationCommand.h"

#include <QCoreApplication>
#include <QDir>
#include <QPromise>

#include <thread>

namespace corvane {

namespace {

/// The result of `work`, done on a thread that nobody joins: the program may end before it does.
template <typename Work>
QFuture<bool> inBackground(Work work) {
    QPromise<bool> promise;
    promise.start();
    QFuture<bool> future = promise.future();
    std::thread([promise = std::move(promise), work = std::move(work)]() mutable {
        promise.addResult(work());
        promise.finish();
    }).detach();
    return future;
}

} // namespace

int runBriefly(const QString& program, const QStringList& arguments) {
    constexpr int kMaxWaitMs = 3000;
    constexpr int kNoAnswer = -1;
    QProcess process;
    process.start(program, arguments);
    const bool ended =
        process.waitForFinished(kMaxWaitMs) && process.exitStatus() == QProcess::NormalExit;
    return ended ? process.exitCode() : kNoAnswer;
}

QString SystemIntegration::startAtLogonText() const {
    return QCoreApplication::translate("corvane::SettingsDialog", "Start with Windows");
}

QString SystemIntegration::startAtLogonToolTip() const {
    return QCoreApplication::translate("corvane::SettingsDialog",
                                       "Automatically start Corvane when you log in to Windows.");
}

QFuture<bool> SystemIntegration::startsAtLogon() {
    return inBackground([task = LogonTask(m_query)] { return task.exists(); });
}

QFuture<bool> SystemIntegration::isServiceInstalled() {
    return inBackground([query = m_query] {
        return query(QStringLiteral("sc"),
                     {QStringLiteral("query"), QStringLiteral("CorvaneService")}) == 0;
    });
}

QFuture<bool> SystemIntegration::apply(const IntegrationChoice& choice) {
    const QString program = QDir::toNativeSeparators(QCoreApplication::applicationFilePath());
    const QString command =
        integrationCommandLine(choice, program, QCoreApplication::applicationDirPath());
    return inBackground(
        [command, elevation = m_elevation] { return runElevated(command, elevation); });
}

std::unique_ptr<ISystemIntegration> createSystemIntegration() {
    return std::make_unique<SystemIntegration>();
}

} // namespace corvane
