#include "ClientProcess.h"

#include "XvfbServer.h"

#include <QDir>
#include <QFile>
#include <QSettings>

namespace corvane::harness {

namespace {

constexpr int kStartTimeoutMs = 10'000;
constexpr int kStopTimeoutMs = 20'000;

} // namespace

void tieToParent(QProcess& process) {
    process.setChildProcessModifier(test::endWithParent);
}

ClientProcess::ClientProcess(const QString& display) {
    const QString home = m_home.path();
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), home);
    for (const auto& [variable, folder] :
         {std::pair{"XDG_CONFIG_HOME", "config"}, std::pair{"XDG_DATA_HOME", "data"},
          std::pair{"XDG_CACHE_HOME", "cache"}, std::pair{"XDG_RUNTIME_DIR", "runtime"}}) {
        const QString path = home + QLatin1Char('/') + QLatin1String(folder);
        QDir().mkpath(path);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        environment.insert(QLatin1String(variable), path);
    }
    environment.insert(QStringLiteral("DISPLAY"), display);
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    m_process.setProcessEnvironment(environment);
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    tieToParent(m_process);
}

ClientProcess::~ClientProcess() {
    stop();
}

void ClientProcess::presetPassword(const QString& password) {
    QSettings(settingsPath(), QSettings::NativeFormat)
        .setValue(QStringLiteral("auth/sessionPassword"), password);
}

void ClientProcess::presetCredentials(const QString& clientId, const QString& secret) {
    QSettings settings(settingsPath(), QSettings::NativeFormat);
    settings.setValue(QStringLiteral("auth/clientId"), clientId);
    settings.setValue(QStringLiteral("auth/deviceSecret"), secret);
}

bool ClientProcess::start(const QStringList& arguments) {
    QFile::remove(logPath());
    m_process.start(QStringLiteral(CORVANE_CLIENT_PATH),
                    QStringList{QStringLiteral("--log-level"), QStringLiteral("debug")} +
                        arguments);
    return m_process.waitForStarted(kStartTimeoutMs);
}

int ClientProcess::runSecondCopy(const QStringList& arguments) const {
    QProcess copy;
    copy.setProcessEnvironment(m_process.processEnvironment());
    copy.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    tieToParent(copy);
    copy.start(QStringLiteral(CORVANE_CLIENT_PATH), arguments);
    const bool ended = copy.waitForFinished(kStartTimeoutMs);
    return ended && copy.exitStatus() == QProcess::NormalExit ? copy.exitCode() : -1;
}

void ClientProcess::crash() {
    m_process.kill();
    m_process.waitForFinished();
}

bool ClientProcess::stop() {
    if (m_process.state() == QProcess::NotRunning) {
        return true;
    }
    m_process.terminate();
    if (m_process.waitForFinished(kStopTimeoutMs)) {
        return m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
    }
    m_process.kill();
    m_process.waitForFinished();
    return false;
}

QString ClientProcess::clientId() const {
    return QSettings(settingsPath(), QSettings::NativeFormat)
        .value(QStringLiteral("auth/clientId"))
        .toString();
}

QString ClientProcess::homePath(const QString& relative) const {
    return m_home.path() + QLatin1Char('/') + relative;
}

QString ClientProcess::log() const {
    QFile file(logPath());
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList ClientProcess::logLines(const QString& part) const {
    return log().split(QLatin1Char('\n')).filter(part);
}

QString ClientProcess::logPath() const {
    return homePath(QStringLiteral("data/Corvane/CorvaneClient/CorvaneClient.log"));
}

QString ClientProcess::settingsPath() const {
    return homePath(QStringLiteral("config/Corvane/CorvaneClient.conf"));
}

} // namespace corvane::harness
