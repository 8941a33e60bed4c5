#include "netns/TestNetwork.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include <cerrno>
#include <cstring>
#include <sched.h>
#include <system_error>

namespace corvane::test {

namespace {

constexpr int kPeers = 2;
constexpr int kDelayTable = 77;
constexpr auto kDelayInterface = "delay";

/// Finds an administration tool, whether or not it is on the user's path.
QString findTool(const QString& name) {
    const QString tool = QStandardPaths::findExecutable(name);
    return !tool.isEmpty() ? tool
                           : QStandardPaths::findExecutable(
                                 name, {QStringLiteral("/usr/sbin"), QStringLiteral("/sbin")});
}

} // namespace

TestNetwork::TestNetwork(const Conditions& conditions) : m_conditions(conditions) {
    enterNamespace();
    run(QStringLiteral("ip link set lo up"));
    run(QStringLiteral("ip address add %1/32 dev lo").arg(QLatin1String(kServerAddress)));
}

void TestNetwork::enterNamespace() {
    if (unshare(CLONE_NEWNET) != 0) {
        m_obstacle =
            QStringLiteral("network namespace: %1, must be root (or run by \"unshare -r\")")
                .arg(QString::fromLocal8Bit(std::strerror(errno)));
        return;
    }
    QFile forwarding(QStringLiteral("/proc/sys/net/ipv4/ip_forward"));
    if (!forwarding.open(QIODevice::WriteOnly) || forwarding.write("1") != 1) {
        m_obstacle = QStringLiteral("packet forwarding: %1").arg(forwarding.errorString());
    }
}

void TestNetwork::attach(qint64 process) {
    const int peer = ++m_peers;
    run(QStringLiteral("ip link add peer%1 type veth peer name up%1").arg(peer));
    run(QStringLiteral("ip address add 10.77.%1.1/24 dev peer%1").arg(peer));
    run(QStringLiteral("ip link set peer%1 up").arg(peer));
    run(QStringLiteral("ip link set up%1 netns %2").arg(peer).arg(process));
    const QString within = QStringLiteral("nsenter --target %1 --net ip ").arg(process);
    run(within + QStringLiteral("link set lo up"));
    run(within + QStringLiteral("address add 10.77.%1.2/24 dev up%1").arg(peer));
    run(within + QStringLiteral("link set up%1 up").arg(peer));
    run(within + QStringLiteral("route add default via 10.77.%1.1").arg(peer));
    if (peer == kPeers) {
        applyConditions();
    }
}

void TestNetwork::applyConditions() {
    const int loss = m_conditions.udpLossPercent;
    if (loss > 0) {
        const QString chance =
            loss < 100 ? QStringLiteral("numgen random mod 100 < %1 ").arg(loss) : QString();
        run(QStringLiteral("nft --file -"),
            QStringLiteral("table inet path {\n"
                           "  chain between {\n"
                           "    type filter hook forward priority 0; policy accept;\n"
                           "    meta l4proto udp %1counter drop\n"
                           "  }\n"
                           "}\n")
                .arg(chance));
    }
    for (int peer = 1; peer <= kPeers && m_conditions.kilobitsPerSecond > 0; ++peer) {
        run(QStringLiteral("tc qdisc add dev peer%1 root tbf rate %2kbit burst 16kb latency 100ms")
                .arg(peer)
                .arg(m_conditions.kilobitsPerSecond));
    }
    if (m_conditions.delay.count() == 0 || !m_obstacle.isEmpty()) {
        return;
    }
    try {
        m_delayLine.emplace(kDelayInterface, m_conditions.delay);
    } catch (const std::system_error& error) {
        m_obstacle = QString::fromLocal8Bit(error.what());
        return;
    }
    run(QStringLiteral("ip link set %1 up").arg(QLatin1String(kDelayInterface)));
    run(QStringLiteral("ip route add default dev %1 table %2")
            .arg(QLatin1String(kDelayInterface))
            .arg(kDelayTable));
    for (int peer = 1; peer <= kPeers; ++peer) {
        run(QStringLiteral("ip rule add iif peer%1 lookup %2").arg(peer).arg(kDelayTable));
    }
}

int TestNetwork::packetsLost() {
    const QString rules = run(QStringLiteral("nft list table inet path"));
    static const QRegularExpression counter(QStringLiteral("counter packets (\\d+)"));
    return counter.match(rules).captured(1).toInt();
}

QString TestNetwork::run(const QString& commandLine, const QString& input) {
    if (!m_obstacle.isEmpty()) {
        return {};
    }
    QStringList words = commandLine.split(u' ');
    const QString program = words.takeFirst();
    const QString tool = findTool(program);
    if (tool.isEmpty()) {
        m_obstacle = QStringLiteral("%1 is not installed").arg(program);
        return {};
    }
    QProcess process;
    process.start(tool, words);
    process.write(input.toUtf8());
    process.closeWriteChannel();
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0) {
        m_obstacle = QStringLiteral("%1: %2").arg(
            commandLine, QString::fromLocal8Bit(process.readAllStandardError()).trimmed());
    }
    return QString::fromLocal8Bit(process.readAllStandardOutput());
}

} // namespace corvane::test
