#include "netns/PeerProcess.h"

#include <qtestsupport_core.h>

#include <algorithm>
#include <csignal>
#include <sched.h>
#include <sys/prctl.h>

namespace corvane::test {

PeerProcess::PeerProcess() {
    m_process.setChildProcessModifier([] {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (unshare(CLONE_NEWNET) != 0) {
            ::_exit(EXIT_FAILURE);
        }
    });
    QObject::connect(&m_process, &QProcess::readyReadStandardOutput, [this] {
        while (m_process.canReadLine()) {
            m_events.push_back(nlohmann::json::parse(m_process.readLine().toStdString()));
        }
    });
    QObject::connect(&m_process, &QProcess::readyReadStandardError,
                     [this] { m_log += m_process.readAllStandardError(); });
}

PeerProcess::~PeerProcess() {
    m_process.disconnect();
    m_process.kill();
    m_process.waitForFinished();
}

bool PeerProcess::start(const QString& program) {
    m_process.start(program, {});
    return m_process.waitForStarted();
}

void PeerProcess::order(const nlohmann::json& order) {
    m_process.write(QByteArray::fromStdString(order.dump()) + '\n');
}

std::optional<nlohmann::json> PeerProcess::await(const nlohmann::json& like, int milliseconds) {
    const auto find = [&] {
        return std::find_if(m_events.begin(), m_events.end(), [&](const nlohmann::json& event) {
            return std::all_of(like.items().begin(), like.items().end(), [&](const auto& field) {
                return event.contains(field.key()) && event.at(field.key()) == field.value();
            });
        });
    };
    const auto over = [&] {
        return find() != m_events.end() || m_process.state() != QProcess::Running;
    };
    [[maybe_unused]] const bool inTime = QTest::qWaitFor(over, milliseconds);
    const auto found = find();
    return found != m_events.end() ? std::optional(*found) : std::nullopt;
}

std::vector<int> PeerProcess::numbers(const std::string& event, const std::string& field) const {
    std::vector<int> numbers;
    for (const auto& candidate : m_events) {
        if (candidate.at("event") == event) {
            numbers.push_back(candidate.at(field));
        }
    }
    return numbers;
}

} // namespace corvane::test
