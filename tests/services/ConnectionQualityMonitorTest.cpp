#include "services/ConnectionQualityMonitor.h"

#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace corvane::test {
namespace {

using namespace Qt::StringLiterals;

class ConnectionQualityMonitorTest : public ::testing::Test {
protected:
    ConnectionStats tick(int frames, double latency) {
        for (int i = 0; i < frames; ++i) {
            m_monitor.countFrame();
        }
        m_monitor.setLatency(latency);
        m_monitor.onUpdateTick();
        return m_monitor.stats();
    }

    ConnectionQualityMonitor m_monitor;
    QSignalSpy m_changes{&m_monitor, &ConnectionQualityMonitor::qualityChanged};
    QSignalSpy m_updates{&m_monitor, &ConnectionQualityMonitor::statsUpdated};
};

TEST_F(ConnectionQualityMonitorTest, LevelFollowsFramesAndLatency) {
    using enum QualityLevel;
    const std::tuple<int, double, QualityLevel, int> ticks[] = {
        {8, 99.9, Good, 0}, {30, 100, Fair, 1}, {30, 299.9, Fair, 1}, {7, 10, Fair, 1},
        {4, 299, Fair, 1},  {30, 300, Poor, 2}, {3, 1, Poor, 2},      {60, 0, Good, 3},
    };
    for (const auto& [frames, latency, level, changesSoFar] : ticks) {
        tick(frames, latency);
        EXPECT_EQ(m_monitor.qualityLevel(), level) << frames << latency;
        EXPECT_EQ(m_changes.count(), changesSoFar);
    }
    EXPECT_EQ(m_updates.count(), std::ssize(ticks));
    EXPECT_EQ(m_changes.last()[0].value<QualityLevel>(), Good);
}

TEST_F(ConnectionQualityMonitorTest, TicksStartAfreshAndTotalsDoNot) {
    m_monitor.addBytesSent(1'000);
    m_monitor.addBytesReceived(250);
    m_monitor.countDroppedFrame();
    EXPECT_DOUBLE_EQ(tick(5, 20).bandwidthKbps, 10.0);
    m_monitor.addBytesSent(500);
    const ConnectionStats second = tick(0, 30);
    EXPECT_DOUBLE_EQ(second.fps, 0);
    EXPECT_DOUBLE_EQ(second.latencyMs, 30);
    EXPECT_DOUBLE_EQ(second.bandwidthKbps, 4.0);
    EXPECT_EQ(second.bytesSent, 1'500);
    EXPECT_EQ(second.bytesReceived, 250);
    EXPECT_EQ(second.framesDropped, 1);

    m_monitor.start();
    EXPECT_EQ(m_monitor.stats().bytesSent, 0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_updates.count() == 3; }, 3000)) << "by itself";
    const auto first = m_updates.last()[0].value<ConnectionStats>();
    EXPECT_EQ(first.bytesSent + first.bytesReceived + first.framesDropped, 0);
    EXPECT_EQ(first.uptimeSeconds, 1U);
    m_monitor.stop();
    EXPECT_EQ(m_monitor.stats().uptimeSeconds, 0U);
}

TEST(ConnectionSummary, RoundsAndScales) {
    EXPECT_EQ(
        ConnectionQualityMonitor::summaryText(
            {.fps = 23.5, .latencyMs = 12.5, .bandwidthKbps = 999.6, .uptimeSeconds = 90'061}),
        u"FPS: 24 | Latency: 13ms | BW: 1000 kbps | Uptime: 25:01:01"_s);
    EXPECT_EQ(ConnectionQualityMonitor::summaryText({.bandwidthKbps = 1000}),
              u"FPS: 0 | Latency: 0ms | BW: 1.0 Mbps | Uptime: 00:00:00"_s);
}

} // namespace
} // namespace corvane::test
