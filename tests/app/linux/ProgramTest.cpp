#include "app/QuitOnRequest.h"
#include "app/SingleInstanceGuard.h"
#include "integration/Autostart.h"
#include "integration/ISystemIntegration.h"
#include "support/Files.h"
#include "xvfb/XvfbServer.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <gtest/gtest.h>

#include <csignal>
#include <thread>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;

/// Folders of a user of their own, shared with a child that runs the same case.
class ProgramTest : public testing::Test {
protected:
    ProgramTest() {
        QStandardPaths::setTestModeEnabled(false);
        const QByteArray home = isChild() ? qgetenv("CORVANE_TEST_HOME") : m_home.path().toUtf8();
        for (const char* variable : {"XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "CORVANE_TEST_HOME"}) {
            qputenv(variable, home);
        }
    }
    ~ProgramTest() override { qunsetenv("CORVANE_TEST_HOME"); }

    void startChild(const QString& program) {
        const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
        m_child.setChildProcessModifier(test::endWithParent);
        m_child.start(program, {u"--gtest_filter=*."_s + QString::fromUtf8(test->name())});
    }

    static bool isChild() {
        static const bool child = qEnvironmentVariableIsSet("CORVANE_TEST_HOME");
        return child;
    }

    QTemporaryDir m_home;
    QProcess m_child;
};

TEST_F(ProgramTest, RunsOnceUntilItsProcessIsGone) {
    auto guard = std::make_unique<SingleInstanceGuard>();
    EXPECT_TRUE(guard->isFirst());
    EXPECT_FALSE(SingleInstanceGuard().isFirst());
    if (isChild()) {
        std::puts("guarded");
        std::fflush(stdout);
        qApp->exec(); // until killed
    }
    guard.reset();
    startChild(qApp->applicationFilePath());
    QByteArray output;
    while (!output.contains("guarded") && m_child.waitForReadyRead(30'000)) {
        output += m_child.readAllStandardOutput();
    }
    EXPECT_FALSE(SingleInstanceGuard().isFirst()) << output.toStdString();
    m_child.kill();
    m_child.waitForFinished();
    EXPECT_TRUE(SingleInstanceGuard().isFirst());
}

TEST_F(ProgramTest, StartsWithTheDesktopFromAnyPath) {
    EXPECT_TRUE(installAutostart());
    if (isChild()) {
        return;
    }
    EXPECT_TRUE(installAutostart());
    const QString entry = m_home.filePath(u"autostart/CorvaneClient.desktop"_s);
    EXPECT_TRUE(uninstallAutostart());
    EXPECT_FALSE(QFile::exists(entry));
    EXPECT_FALSE(uninstallAutostart());

    const QString program = m_home.filePath(uR"(a "b" $c `d` 100% e\f ü)"_s);
    ASSERT_TRUE(QFile::copy(qApp->applicationFilePath(), program));
    startChild(program);
    ASSERT_TRUE(m_child.waitForFinished(30'000));
    const QString exec =
        u"Exec=\""_s + m_home.path() + uR"(/a \\"b\\" \\$c \\`d\\` 100%% e\\\\f ü")"_s;
    const QString tryExec = u"TryExec="_s + m_home.path() + uR"(/a "b" $c `d` 100% e\\f ü)"_s;
    const QStringList lines = QString::fromUtf8(test::contentOf(entry)).split(u'\n');
    EXPECT_TRUE(lines.contains(exec));
    EXPECT_TRUE(lines.contains(tryExec));
}

TEST_F(ProgramTest, StartsWithTheDesktopAsChosen) {
    const auto integration = createSystemIntegration();
    for (const bool chosen : {false, true, true, false}) {
        EXPECT_TRUE(integration->apply({.startAtLogon = chosen, .runService = false}).result());
        EXPECT_EQ(integration->startsAtLogon().result(), chosen);
    }
    EXPECT_FALSE(integration->hasService());
    const QString folder = m_home.filePath(u"autostart"_s);
    ASSERT_TRUE(QDir().rmdir(folder));
    test::writeFile(folder, "in the way");
    EXPECT_FALSE(integration->apply({.startAtLogon = true, .runService = false}).result());
}

TEST_F(ProgramTest, EndsOnTheSystemsRequestWhateverTheWindowWants) {
    class Stubborn : public QWidget {
        void closeEvent(QCloseEvent* event) override { event->ignore(); }
    } window;
    window.show();
    quitOnSystemRequest(*qApp);
    std::thread([] { std::raise(SIGTERM); }).join();
    QTimer::singleShot(5000, qApp, [] { QCoreApplication::exit(1); });
    EXPECT_EQ(qApp->exec(), 0);
}

} // namespace
} // namespace corvane
