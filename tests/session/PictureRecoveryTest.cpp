#include "session/PictureRecovery.h"

#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace corvane {
namespace {

using namespace std::chrono_literals;

class PictureRecoveryTest : public testing::Test {
protected:
    PictureRecovery m_recovery{{.reorderWindow = 20ms, .interval = 50ms, .firstPicture = 100ms}};
    QSignalSpy m_requests{&m_recovery, &PictureRecovery::keyframeNeeded};
};

TEST_F(PictureRecoveryTest, AsksUntilAKeyFrameIsThere) {
    m_recovery.start();
    QElapsedTimer clock;
    clock.start();
    ASSERT_TRUE(m_requests.wait());
    EXPECT_GE(clock.elapsed(), 95);
    clock.start();
    ASSERT_TRUE(m_requests.wait()); // nothing came, ask again
    EXPECT_GE(clock.elapsed(), 45);

    m_recovery.onMessage(0);
    m_recovery.onKeyframe(0);
    EXPECT_FALSE(m_requests.wait(150));

    m_requests.clear();
    m_recovery.onMessage(2); // 1 is lost
    ASSERT_TRUE(m_requests.wait());
    for (int i = 0; i < 100; ++i) {
        m_recovery.onDecodeFailure(2);
    }
    EXPECT_EQ(m_requests.count(), 1) << "asks no more than once in an interval";
    m_recovery.onMessage(5); // 3 and 4 are lost, but this one starts afresh
    m_recovery.onKeyframe(5);
    m_recovery.onDecodeFailure(2); // known late, and made good by now
    m_requests.clear();
    EXPECT_FALSE(m_requests.wait(150));
    m_recovery.onDecodeFailure(5);
    EXPECT_EQ(m_requests.count(), 1);
    m_recovery.stop();
    EXPECT_FALSE(m_requests.wait(150));
}

} // namespace
} // namespace corvane
