#include "XvfbServer.h"

#include <csignal>
#include <sys/prctl.h>

namespace corvane::test {

namespace {
constexpr int kStartTimeoutMs = 20'000;
}

XvfbServer::XvfbServer(QSize size) {
    // However this process ends, the server ends with it.
    m_process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
    m_process.setStandardErrorFile(QProcess::nullDevice());
    m_process.start(
        QStringLiteral("Xvfb"),
        {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
         QStringLiteral("0"), QStringLiteral("%1x%2x24").arg(size.width()).arg(size.height()),
         QStringLiteral("-nolisten"), QStringLiteral("tcp"), QStringLiteral("-noreset")});
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
