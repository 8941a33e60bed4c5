#include "harness/ClientProcess.h"
#include "harness/LiveSession.h"
#include "harness/WineHost.h"
#include "xvfb/XvfbServer.h"

#include <QFile>
#include <gtest/gtest.h>

#include <memory>

namespace corvane::harness {
namespace {

using namespace std::chrono_literals;

/// One user whose server cannot be reached.
class StartHabitsTest : public ::testing::TestWithParam<Platform> {
protected:
    void SetUp() override {
        if (GetParam() == Platform::Windows && !WineHost::obstacle().isEmpty()) {
            GTEST_SKIP() << WineHost::obstacle().toStdString();
        }
        m_client = std::make_unique<ClientProcess>(m_display.display(), GetParam());
    }

    bool startAndWait() {
        return m_client->start() && waitFor([this] { return hasLogged("First launch"); }, 30s);
    }

    bool hasLogged(const char* part) const {
        return !m_client->logLines(QLatin1String(part)).isEmpty();
    }

    test::XvfbServer m_display;
    std::unique_ptr<ClientProcess> m_client;
};

TEST_P(StartHabitsTest, ASecondCopyLeavesSilentlyAndDoesNothing) {
    ASSERT_TRUE(startAndWait());
    EXPECT_EQ(m_client->runSecondCopy({}), 0);
    EXPECT_EQ(m_client->runSecondCopy({QStringLiteral("--install")}), 0);
    // A second copy that got as far as its log would have emptied the first one's.
    EXPECT_TRUE(hasLogged("Corvane Client starting..."));
    EXPECT_TRUE(m_client->isRunning());
    EXPECT_TRUE(m_client->stop());
}

TEST_P(StartHabitsTest, TheChosenLanguageIsSpoken) {
    m_client->presetLanguage(QStringLiteral("de"));
    ASSERT_TRUE(startAndWait());
    EXPECT_TRUE(hasLogged("Loaded translation: de"));
    EXPECT_TRUE(m_client->stop());
}

TEST_P(StartHabitsTest, ACrashKeepsTheSettingsAndTheNextStartWorks) {
    const QString password = QStringLiteral("Kept1234");
    m_client->presetPassword(password);
    ASSERT_TRUE(startAndWait());
    m_client->crash();
    EXPECT_TRUE(startAndWait());
    EXPECT_EQ(m_client->host().setting(QStringLiteral("auth/sessionPassword")), password);
    EXPECT_TRUE(m_client->stop());
}

INSTANTIATE_TEST_SUITE_P(, StartHabitsTest, ::testing::Values(Platform::Linux, Platform::Windows),
                         [](const auto& instance) {
                             return toString(instance.param).toStdString();
                         });

TEST(AutostartTest, IsInstalledAndUninstalledWithoutAWindow) {
    const test::XvfbServer display;
    const ClientProcess client(display.display());
    const QString entry = client.homePath(QStringLiteral("config/autostart/CorvaneClient.desktop"));
    const QString install = QStringLiteral("--install");
    const QString uninstall = QStringLiteral("--uninstall");
    EXPECT_EQ(client.runSecondCopy({uninstall}), 1) << "nothing to take back";
    EXPECT_EQ(client.runSecondCopy({install, uninstall}), 0);
    EXPECT_TRUE(QFile::exists(entry)) << "the first option wins";
    EXPECT_EQ(client.runSecondCopy({uninstall}), 0);
    EXPECT_FALSE(QFile::exists(entry));
}

} // namespace
} // namespace corvane::harness
