#include "ClientProcess.h"
#include "LiveSession.h"
#include "XvfbServer.h"

#include <QFile>
#include <gtest/gtest.h>

namespace corvane::harness {
namespace {

using namespace std::chrono_literals;

/// One user whose server cannot be reached.
class StartHabitsTest : public ::testing::Test {
protected:
    bool startAndWait() {
        return m_client.start() && waitFor([this] { return hasLogged("First launch"); }, 10s);
    }

    bool hasLogged(const char* part) const {
        return !m_client.logLines(QLatin1String(part)).isEmpty();
    }

    QString autostartEntry() const {
        return m_client.homePath(QStringLiteral("config/autostart/CorvaneClient.desktop"));
    }

    test::XvfbServer m_display;
    ClientProcess m_client{m_display.display()};
};

TEST_F(StartHabitsTest, ASecondCopyLeavesSilentlyAndDoesNothing) {
    ASSERT_TRUE(startAndWait());
    EXPECT_EQ(m_client.runSecondCopy({}), 0);
    EXPECT_EQ(m_client.runSecondCopy({QStringLiteral("--install")}), 0);
    EXPECT_FALSE(QFile::exists(autostartEntry()));
    // A second copy that got as far as its log would have emptied the first one's.
    EXPECT_TRUE(hasLogged("Corvane Client starting..."));
    EXPECT_TRUE(m_client.isRunning());
    EXPECT_TRUE(m_client.stop());
}

TEST_F(StartHabitsTest, ACrashDoesNotKeepTheNextStartAway) {
    ASSERT_TRUE(startAndWait());
    m_client.crash();
    EXPECT_TRUE(startAndWait());
    EXPECT_TRUE(m_client.stop());
}

TEST_F(StartHabitsTest, InstallsAndUninstallsWithoutAWindow) {
    const QString install = QStringLiteral("--install");
    const QString uninstall = QStringLiteral("--uninstall");
    EXPECT_EQ(m_client.runSecondCopy({uninstall}), 1) << "nothing to take back";
    EXPECT_EQ(m_client.runSecondCopy({install, uninstall}), 0);
    EXPECT_TRUE(QFile::exists(autostartEntry())) << "the first option wins";
    EXPECT_EQ(m_client.runSecondCopy({uninstall}), 0);
    EXPECT_FALSE(QFile::exists(autostartEntry()));
}

} // namespace
} // namespace corvane::harness
