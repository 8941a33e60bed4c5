#include "LiveSession.h"
#include "WineHost.h"

#include <gtest/gtest.h>

namespace corvane::harness {
namespace {

using namespace std::chrono_literals;

struct Pair {
    Platform target;
    Platform viewer;
};

/// Sessions in which a Windows program takes part.
class PlatformsTest : public ::testing::TestWithParam<Pair> {
protected:
    void SetUp() override {
        if (!WineHost::obstacle().isEmpty()) {
            GTEST_SKIP() << WineHost::obstacle().toStdString();
        }
        ASSERT_TRUE(m_live.start()) << m_live.error().toStdString();
    }

    LiveSession m_live{{.viewerDisplay = {},
                        .stillDesktop = true,
                        .target = GetParam().target,
                        .viewer = GetParam().viewer}};
};

TEST_P(PlatformsTest, SeeAndDriveOneAnother) {
    ASSERT_TRUE(m_live.connectToTarget()) << m_live.error().toStdString();
    EXPECT_GE(m_live.pictureFidelity(), 28.0);
    EXPECT_TRUE(m_live.typeRemotely(QStringLiteral("Hello-World_42!")))
        << m_live.error().toStdString();
    EXPECT_GE(m_live.pictureFidelity(), 28.0);

    m_live.viewerDisplay().pressKey('d', {kKeyControl, kKeyShift});
    for (const ClientProcess* client : {&m_live.viewer(), &m_live.target()}) {
        EXPECT_TRUE(waitFor(
            [&] { return LiveSession::stateChanges(*client).endsWith(u"Closing -> Idle"); }, 20s));
        EXPECT_EQ(client->logLines(QStringLiteral("[error]")).join(u'\n').toStdString(), "");
    }
    EXPECT_TRUE(m_live.viewer().stop());
    EXPECT_TRUE(m_live.target().stop());
}

INSTANTIATE_TEST_SUITE_P(, PlatformsTest,
                         ::testing::Values(Pair{Platform::Windows, Platform::Linux},
                                           Pair{Platform::Linux, Platform::Windows},
                                           Pair{Platform::Windows, Platform::Windows}),
                         [](const auto& instance) {
                             return (toString(instance.param.target) + QStringLiteral("SeenFrom") +
                                     toString(instance.param.viewer))
                                 .toStdString();
                         });

} // namespace
} // namespace corvane::harness
