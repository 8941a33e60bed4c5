#include "netns/NetworkPlace.h"

#include <QFile>

#include <csignal>
#include <fcntl.h>
#include <sched.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace corvane::test {

NetworkPlace::NetworkPlace() {
    m_process.setChildProcessModifier([] {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (unshare(CLONE_NEWNET) != 0) {
            ::_exit(EXIT_FAILURE);
        }
    });
    m_process.start(QStringLiteral("sleep"), {QStringLiteral("infinity")});
    if (m_process.waitForStarted()) {
        const QByteArray path = "/proc/" + QByteArray::number(process()) + "/ns/net";
        m_namespace = open(path.constData(), O_RDONLY | O_CLOEXEC);
    }
}

NetworkPlace::~NetworkPlace() {
    m_process.kill();
    m_process.waitForFinished();
    if (m_namespace >= 0) {
        close(m_namespace);
    }
}

std::function<void()> NetworkPlace::entrance() const {
    return [descriptor = m_namespace] {
        setns(descriptor, CLONE_NEWNET);
    };
}

qint64 NetworkPlace::bytesSent() const {
    constexpr qsizetype kSentBytes = 8; // the ninth number of an interface's line
    QFile file(QStringLiteral("/proc/%1/net/dev").arg(process()));
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    for (const QByteArray& line : file.readAll().split('\n')) {
        const qsizetype colon = line.indexOf(':');
        if (line.left(colon).trimmed().startsWith("up")) {
            const QList<QByteArray> numbers = line.mid(colon + 1).simplified().split(' ');
            return numbers.value(kSentBytes).toLongLong();
        }
    }
    return 0;
}

} // namespace corvane::test
