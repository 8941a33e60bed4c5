#include "harness/LiveSession.h"
#include "harness/WineHost.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

namespace corvane::harness {
namespace {

using namespace std::chrono_literals;

struct Pair {
    Platform target;
    Platform viewer;
};

/// Sessions of two real programs on two displays, and a desktop that stands still.
class PlatformsTest : public ::testing::TestWithParam<Pair> {
protected:
    void SetUp() override {
        const bool needsWine =
            GetParam().target == Platform::Windows || GetParam().viewer == Platform::Windows;
        if (needsWine && !WineHost::obstacle().isEmpty()) {
            GTEST_SKIP() << WineHost::obstacle().toStdString();
        }
        ASSERT_TRUE(m_live.start()) << m_live.error().toStdString();
    }

    /// The error lines of the log, but for those about the desktop duplication that Wine lacks.
    static std::string errors(const ClientProcess& client) {
        const QStringList lines = client.logLines(QStringLiteral("[error]"));
        return lines.filter(QRegularExpression(QStringLiteral("^(?!.*DxgiCaptureBackend)")))
            .join(u'\n')
            .toStdString();
    }

    static bool ends(const ClientProcess& client) {
        return waitFor(
            [&] { return LiveSession::stateChanges(client).endsWith(u"Closing -> Idle"); }, 20s);
    }

    LiveSession m_live{{.viewerDisplay = {},
                        .stillDesktop = true,
                        .target = GetParam().target,
                        .viewer = GetParam().viewer}};
};

TEST_P(PlatformsTest, SeeAndDriveOneAnother) {
    ASSERT_TRUE(m_live.connectToTarget()) << m_live.error().toStdString();
    EXPECT_GE(m_live.pictureFidelity(), 28.0);
    // Capitals, digits and a sign that takes Shift: the keyboard arrives key by key.
    EXPECT_TRUE(m_live.typeRemotely(QStringLiteral("Hello-World_42!")))
        << m_live.error().toStdString();
    EXPECT_GE(m_live.pictureFidelity(), 28.0);

    for (const ClientProcess* client : {&m_live.viewer(), &m_live.target()}) {
        EXPECT_EQ(errors(*client), "");
    }
    // Either a person ends the session, or the system asks the viewer's program to end, which
    // closes the session on the way out.
    const bool byKeyboard = GetParam().viewer == Platform::Linux;
    if (byKeyboard) {
        m_live.viewerDisplay().pressKey('d', {kKeyControl, kKeyShift});
        EXPECT_TRUE(ends(m_live.viewer()));
    }
    EXPECT_TRUE(m_live.viewer().stop());
    EXPECT_TRUE(ends(m_live.target()));
    EXPECT_TRUE(m_live.target().stop());
    const QString reason = byKeyboard ? u"user_disconnect"_qs : u"destructor_cleanup"_qs;
    EXPECT_EQ(m_live.viewer().logLines(u"(reason: %1)"_qs.arg(reason)).size(), 1);
    for (const ClientProcess* client : {&m_live.viewer(), &m_live.target()}) {
        EXPECT_FALSE(client->log().contains(m_live.targetPassword()));
    }
}

INSTANTIATE_TEST_SUITE_P(, PlatformsTest,
                         ::testing::Values(Pair{Platform::Linux, Platform::Linux},
                                           Pair{Platform::Windows, Platform::Linux},
                                           Pair{Platform::Linux, Platform::Windows},
                                           Pair{Platform::Windows, Platform::Windows}),
                         [](const auto& instance) {
                             return (toString(instance.param.target) + QStringLiteral("SeenFrom") +
                                     toString(instance.param.viewer))
                                 .toStdString();
                         });

} // namespace
} // namespace corvane::harness
