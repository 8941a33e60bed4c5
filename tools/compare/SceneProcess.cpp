#include "compare/SceneProcess.h"

#include "harness/WaitFor.h"
#include "xvfb/XvfbServer.h"

#include <QProcessEnvironment>

namespace corvane::compare {

using namespace std::chrono_literals;

SceneProcess::SceneProcess(const QString& display) {
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), display);
    m_process.setProcessEnvironment(environment);
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.setChildProcessModifier(test::endWithParent);
    m_process.start(QStringLiteral(CORVANE_COMPARE_SCENE_PATH), {});
    m_process.waitForStarted();
}

SceneProcess::~SceneProcess() {
    m_process.closeWriteChannel();
    if (!m_process.waitForFinished(5000)) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

bool SceneProcess::begin(const QString& work) {
    m_process.write(work.toUtf8() + '\n');
    return harness::waitFor(
        [this, &work] {
            return m_process.canReadLine() &&
                   QString::fromUtf8(m_process.readLine()).trimmed() == work;
        },
        5s);
}

} // namespace corvane::compare
