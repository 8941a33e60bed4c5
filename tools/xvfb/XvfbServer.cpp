#include "xvfb/XvfbServer.h"

#include <csignal>
#include <sys/prctl.h>

namespace corvane::test {

namespace {
constexpr int kStartTimeoutMs = 20'000;
}

void endWithParent() {
    // The child must receive signals that this process blocks in its own threads.
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    prctl(PR_SET_PDEATHSIG, SIGTERM);
}

XvfbServer::XvfbServer(QSize size, const QStringList& extraArguments) {
    m_process.setChildProcessModifier(endWithParent);
    m_process.setStandardErrorFile(QProcess::nullDevice());
    m_process.start(QStringLiteral("Xvfb"),
                    QStringList{QStringLiteral("-displayfd"), QStringLiteral("1"),
                                QStringLiteral("-screen"), QStringLiteral("0"),
                                QStringLiteral("%1x%2x24").arg(size.width()).arg(size.height()),
                                QStringLiteral("-nolisten"), QStringLiteral("tcp"),
                                QStringLiteral("-noreset")} +
                        extraArguments);
    while (m_process.state() != QProcess::NotRunning && !m_process.canReadLine()) {
        if (!m_process.waitForReadyRead(kStartTimeoutMs)) {
            return;
        }
    }
    const QByteArray number = m_process.readLine().trimmed();
    if (!number.isEmpty()) {
        m_display = QLatin1Char(':') + QString::fromLatin1(number);
    }
}

XvfbServer::~XvfbServer() {
    m_process.terminate();
    if (!m_process.waitForFinished(5000)) {
        m_process.kill();
        m_process.waitForFinished(5000);
    }
}

} // namespace corvane::test
