#include "harness/LiveSession.h"
#include "transport/IPeerTransport.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace corvane::harness {
namespace {

using namespace std::chrono_literals;

constexpr auto kTimeout = 20s;

/// Two real programs on two displays, and a desktop that stands still.
class LiveSessionTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(m_live.start()) << m_live.error().toStdString(); }

    bool isShown(const QString& title) {
        return waitFor([&] { return m_live.viewerDisplay().findWindow(title).has_value(); },
                       kTimeout);
    }

    bool endsWith(const ClientProcess& client, const char* state) {
        return waitFor(
            [&] { return LiveSession::stateChanges(client).endsWith(QLatin1String(state)); },
            kTimeout);
    }

    std::vector<QRect> boxes() {
        std::vector<QRect> found;
        for (const char* title : {"Connection Error", "Session Error"}) {
            if (const auto box = m_live.viewerDisplay().findWindow(QLatin1String(title))) {
                found.push_back(*box);
            }
        }
        return found;
    }

    LiveSession m_live{{.viewerDisplay = {}, .stillDesktop = true}};
};

TEST_F(LiveSessionTest, AWrongPasswordIsToldAndTheNextTryConnects) {
    ASSERT_TRUE(m_live.enterPartner(QStringLiteral("Wrong0000")));
    ASSERT_TRUE(isShown(QStringLiteral("Connection Error")));
    ASSERT_TRUE(isShown(QStringLiteral("Session Error")));
    for (auto shown = boxes(); !shown.empty(); shown = boxes()) {
        // OK sits in the lower right corner of whichever box is on top there.
        m_live.viewerDisplay().click(shown.front().bottomRight() - QPoint(40, 24));
        ASSERT_TRUE(waitFor([&] { return boxes().size() < shown.size(); }, kTimeout));
    }
    // The password field still has the keyboard.
    m_live.viewerDisplay().pressKey('a', {kKeyControl});
    m_live.viewerDisplay().type(m_live.targetPassword());
    m_live.viewerDisplay().pressKey(kKeyReturn);
    EXPECT_TRUE(m_live.waitUntilConnected()) << m_live.error().toStdString();
    EXPECT_EQ(m_live.transport(), createPeerTransport() ? u"p2p"_qs : u"relay"_qs);
}

TEST_F(LiveSessionTest, ATargetThatCrashesBringsTheViewerOfARelayedSessionHome) {
    m_live.server().misbehaviour().setWithholdIce(true);
    ASSERT_TRUE(m_live.connectToTarget()) << m_live.error().toStdString();
    EXPECT_EQ(m_live.transport(), u"relay"_qs);
    m_live.target().crash();
    EXPECT_TRUE(isShown(QStringLiteral("Corvane - Remote Access")));
    EXPECT_TRUE(endsWith(m_live.viewer(), "Closing -> Idle"));
    ASSERT_TRUE(m_live.target().start());
    ASSERT_TRUE(
        waitFor([&] { return m_live.server().isOnline(m_live.target().clientId()); }, kTimeout));
    EXPECT_TRUE(m_live.connectToTarget()) << m_live.error().toStdString();
    // The system asks the program to end, which closes the session on the way out.
    EXPECT_TRUE(m_live.target().stop());
    EXPECT_EQ(m_live.target().logLines(QStringLiteral("(reason: destructor_cleanup)")).size(), 1);
    const auto isLastWord = [](const devserver::Request& request) {
        return request.body.contains("destructor_cleanup");
    };
    EXPECT_TRUE(waitFor([&] { return std::ranges::any_of(m_live.server().requests(), isLastWord); },
                        kTimeout));
}

} // namespace
} // namespace corvane::harness
