#include "harness/ClientProcess.h"

#include "harness/WaitFor.h"
#include "xvfb/XvfbServer.h"

#include <QFile>

namespace corvane::harness {

namespace {

constexpr int kStartTimeoutMs = 10'000;
constexpr std::chrono::seconds kStopTimeout{20};

} // namespace

void tieToParent(QProcess& process) {
    process.setChildProcessModifier(test::endWithParent);
}

ClientProcess::ClientProcess(const QString& display, Platform platform)
    : m_host(createHost(platform, m_home.path(), display)) {
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    tieToParent(m_process);
}

ClientProcess::~ClientProcess() {
    stop();
}

void ClientProcess::presetPassword(const QString& password) {
    m_host->presetSetting(QStringLiteral("auth/sessionPassword"), password);
}

void ClientProcess::presetLanguage(const QString& language) {
    m_host->presetSetting(QStringLiteral("general/language"), language);
}

void ClientProcess::presetCredentials(const QString& clientId, const QString& secret) {
    m_host->presetSetting(QStringLiteral("auth/clientId"), clientId);
    m_host->presetSetting(QStringLiteral("auth/deviceSecret"), secret);
}

void ClientProcess::presetDisplayMode(int mode) {
    m_host->presetSetting(QStringLiteral("display/mode"), QString::number(mode));
}

void ClientProcess::beginWith(const std::function<void()>& step) {
    m_process.setChildProcessModifier([step] {
        test::endWithParent();
        step();
    });
}

bool ClientProcess::start(const QStringList& arguments) {
    QFile::remove(m_host->logPath());
    m_host->prepare(m_process, Program::Client,
                    QStringList{QStringLiteral("--log-level"), QStringLiteral("debug")} +
                        arguments);
    m_process.start();
    return m_process.waitForStarted(kStartTimeoutMs);
}

int ClientProcess::runSecondCopy(const QStringList& arguments) const {
    QProcess copy;
    copy.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    tieToParent(copy);
    m_host->prepare(copy, Program::Client, arguments);
    copy.start();
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
    m_host->requestEnd(m_process);
    // A server in this process has to answer the client's last messages.
    if (waitFor([this] { return m_process.state() == QProcess::NotRunning; }, kStopTimeout)) {
        return m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
    }
    m_process.kill();
    m_process.waitForFinished();
    return false;
}

QString ClientProcess::clientId() const {
    return m_host->setting(QStringLiteral("auth/clientId"));
}

QString ClientProcess::homePath(const QString& relative) const {
    return m_home.path() + QLatin1Char('/') + relative;
}

QString ClientProcess::log() const {
    QFile file(m_host->logPath());
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? QString::fromUtf8(file.readAll())
                                                            : QString();
}

QStringList ClientProcess::logLines(const QString& part) const {
    return log().split(QLatin1Char('\n')).filter(part);
}

} // namespace corvane::harness
