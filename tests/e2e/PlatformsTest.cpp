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

/// Sessions in which a Windows program takes part.
class PlatformsTest : public ::testing::TestWithParam<Pair> {
protected:
    void SetUp() override {
        if (!WineHost::obstacle().isEmpty()) {
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

    for (const ClientProcess* client : {&m_live.viewer(), &m_live.target()}) {
        EXPECT_EQ(errors(*client), "");
    }
    // The system ends the viewer's program and, on the way, the session.
    EXPECT_TRUE(m_live.viewer().stop());
    EXPECT_EQ(m_live.viewer().logLines(QStringLiteral("(reason: destructor_cleanup)")).size(), 1);
    EXPECT_TRUE(waitFor(
        [&] { return LiveSession::stateChanges(m_live.target()).endsWith(u"Closing -> Idle"); },
        20s));
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
