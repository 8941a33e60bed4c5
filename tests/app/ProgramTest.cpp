#include "Autostart.h"
#include "QuitOnRequest.h"
#include "SingleInstanceGuard.h"
#include "XvfbServer.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QFile>
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

/// Folders of a user of their own, for this process and its children.
class ProgramTest : public testing::Test {
protected:
    ProgramTest() {
        QStandardPaths::setTestModeEnabled(false);
        qputenv("XDG_RUNTIME_DIR", m_home.path().toUtf8());
        qputenv("XDG_CONFIG_HOME", m_home.path().toUtf8());
    }

    /// Runs one of the disabled cases below in a process of its own.
    void startCase(const QString& name, const QString& program = qApp->applicationFilePath()) {
        m_child.setChildProcessModifier(test::endWithParent);
        m_child.start(program, {u"--gtest_also_run_disabled_tests"_s,
                                u"--gtest_filter=ProgramTest.DISABLED_"_s + name});
    }

    QTemporaryDir m_home;
    QProcess m_child;
};

/// Holds the guard until killed.
TEST_F(ProgramTest, DISABLED_Guarded) {
    qputenv("XDG_RUNTIME_DIR", qgetenv("XDG_CACHE_HOME"));
    const SingleInstanceGuard guard;
    std::printf("%s\n", guard.isFirst() ? "first" : "second");
    std::fflush(stdout);
    qApp->exec();
}

TEST_F(ProgramTest, RunsOnceUntilItsProcessIsGone) {
    {
        const SingleInstanceGuard first;
        EXPECT_TRUE(first.isFirst());
        EXPECT_FALSE(SingleInstanceGuard().isFirst());
    }
    qputenv("XDG_CACHE_HOME", m_home.path().toUtf8());
    startCase(u"Guarded"_s);
    QByteArray output;
    while (!output.contains("first") && m_child.waitForReadyRead(30'000)) {
        output += m_child.readAllStandardOutput();
    }
    ASSERT_TRUE(output.contains("first")) << output.toStdString();
    EXPECT_FALSE(SingleInstanceGuard().isFirst());
    m_child.kill();
    m_child.waitForFinished();
    EXPECT_TRUE(SingleInstanceGuard().isFirst());
}

TEST_F(ProgramTest, DISABLED_Installed) {
    qputenv("XDG_CONFIG_HOME", qgetenv("XDG_CACHE_HOME"));
    EXPECT_TRUE(installAutostart());
}

TEST_F(ProgramTest, StartsItselfWithTheDesktopFromAnyPath) {
    QFile entry(m_home.filePath(u"autostart/CorvaneClient.desktop"_s));
    EXPECT_FALSE(uninstallAutostart());
    EXPECT_TRUE(installAutostart());
    EXPECT_TRUE(installAutostart());
    EXPECT_TRUE(entry.exists());
    EXPECT_TRUE(uninstallAutostart());
    EXPECT_FALSE(entry.exists());

    qputenv("XDG_CACHE_HOME", m_home.path().toUtf8());
    const QString program = m_home.filePath(uR"(a "b" $c `d` 100% e\f ü)"_s);
    ASSERT_TRUE(QFile::copy(qApp->applicationFilePath(), program));
    startCase(u"Installed"_s, program);
    ASSERT_TRUE(m_child.waitForFinished(30'000));
    ASSERT_EQ(m_child.exitCode(), 0) << m_child.readAll().toStdString();
    ASSERT_TRUE(entry.open(QIODevice::ReadOnly));
    const QString exec =
        u"Exec=\""_s + m_home.path() + uR"(/a \\"b\\" \\$c \\`d\\` 100%% e\\\\f ü")"_s;
    EXPECT_TRUE(QString::fromUtf8(entry.readAll()).split(u'\n').contains(exec));
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
