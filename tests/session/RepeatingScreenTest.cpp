#include "session/RepeatingScreen.h"
#include "session/PacketQueue.h"
#include "session/PictureRequests.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>
#include <utility>
#include <vector>

namespace corvane::test {
namespace {

using namespace std::chrono_literals;

/// Changes when told to.
class ToldScreen : public IScreenCaptureBackend {
public:
    bool initialize(int) override { return true; }
    void shutdown() override {}
    std::unique_ptr<CapturedFrame> captureFrame() override {
        return std::exchange(changed, false) ? std::make_unique<CapturedFrame>() : nullptr;
    }
    std::vector<MonitorInfo> monitors() override { return {}; }
    MonitorInfo currentMonitor() const override { return {}; }
    bool isInitialized() const override { return true; }
    ScreenWait waitForChange(std::chrono::milliseconds timeout) override {
        waited = timeout;
        return ScreenWait::Nothing;
    }

    bool changed = true;
    std::chrono::milliseconds waited{};
};

class RepeatingScreenTest : public ::testing::Test {
protected:
    /// The next pictures that the screen shows, however long that takes.
    std::vector<int> nextRefinements(size_t count) {
        std::vector<int> shown;
        for (const auto end = Clock::now() + 30s; shown.size() < count && Clock::now() < end;) {
            if (auto frame = m_screen.captureFrame()) {
                shown.push_back(frame->refinement);
                m_requests.setLastPicture(std::move(frame));
            }
            std::this_thread::sleep_for(1ms);
        }
        return shown;
    }

    using Clock = std::chrono::steady_clock;

    PacketQueue m_packets;
    PictureRequests m_requests;
    std::unique_ptr<ToldScreen> m_owned = std::make_unique<ToldScreen>();
    ToldScreen& m_told = *m_owned;
    RepeatingScreen m_screen{std::move(m_owned), m_requests, m_packets};
};

TEST_F(RepeatingScreenTest, LooksOnlyWhileAPictureCouldBeSent) {
    EXPECT_FALSE(m_screen.captureFrame());
    EXPECT_EQ(m_screen.waitForChange(1ms), ScreenWait::Nothing);
    m_packets.setFlowing(true);
    m_packets.push({1});
    EXPECT_FALSE(m_screen.captureFrame());
    m_packets.pop();
    EXPECT_TRUE(m_told.changed) << "the change is still to be seen";
    EXPECT_TRUE(m_screen.captureFrame());
}

TEST_F(RepeatingScreenTest, AStillScreenIsRefinedAndThenLeftAlone) {
    m_packets.setFlowing(true);
    const auto begin = Clock::now();
    EXPECT_EQ(nextRefinements(4), (std::vector{0, 1, 2, 3}));
    EXPECT_GE(Clock::now() - begin, 990ms) << "not while somebody types";
    EXPECT_EQ(m_screen.waitForChange(10s), ScreenWait::Nothing);
    EXPECT_LE(m_told.waited, 2s) << "the last repetition, for lost packets, is still to come";
    EXPECT_EQ(nextRefinements(1), std::vector{4});
    m_screen.waitForChange(10s);
    EXPECT_EQ(m_told.waited, 10s) << "then it is left alone";

    m_requests.requestKeyframe();
    EXPECT_EQ(nextRefinements(2), (std::vector{0, 1})) << "a picture sent afresh is refined anew";
    m_told.changed = true;
    EXPECT_EQ(nextRefinements(1), std::vector{0});
}

} // namespace
} // namespace corvane::test
