#include "session/LagGuard.h"
#include "session/StreamLevel.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace corvane::test {
namespace {

using namespace std::chrono_literals;

constexpr auto kTick = 10ms;

/// A line of a certain rate behind a queue of any size.
class Line {
public:
    /// Lets the guard make frames of `frameBytes` as often as it permits, up to 30 a second, and
    /// returns how long the last byte of any
    /// of them had to wait.
    std::chrono::milliseconds run(std::chrono::milliseconds duration, int64_t frameBytes) {
        auto oldest = 0ms;
        const auto end = now + duration;
        for (; now < end; now += kTick) {
            queued = std::max<int64_t>(queued - bytesPerTick, 0);
            const bool mayMake = guard.update(now, {queued, roundTrip});
            if (mayMake && frameBytes > 0 && now >= nextFrame) {
                guard.onSent(now);
                queued += frameBytes;
                if (bytesPerTick > 0) {
                    oldest = std::max(oldest, queued / bytesPerTick * kTick);
                }
                ++frames;
                nextFrame = now + 33ms;
            }
        }
        return oldest;
    }

    LagGuard guard;
    LagGuard::Time now{1h};
    LagGuard::Time nextFrame{};
    int64_t bytesPerTick = 2500; // 2 Mbit/s
    int64_t queued = 0;
    double roundTrip = 50;
    int frames = 0;
};

TEST(LagGuardTest, NothingWaitsLongOnASlowLineAndTheLevelFollowsIt) {
    Line line;
    EXPECT_LE(line.run(2s, 1000), 50ms);
    EXPECT_GE(line.frames, 48) << "a line that carries everything slows nothing down";
    EXPECT_EQ(line.guard.level(), 0);

    EXPECT_LE(line.run(10s, 40'000), 200ms) << "one frame takes 160 ms";
    EXPECT_EQ(line.guard.level(), kMaxStreamLevel);

    line.run(20s, 1000);
    EXPECT_EQ(line.guard.level(), 0) << "and back";
    EXPECT_FALSE(line.guard.isIdle(line.now));
    line.run(6s, 0);
    EXPECT_TRUE(line.guard.isIdle(line.now));
}

TEST(LagGuardTest, AFullQueueInTheNetworkCountsToo) {
    Line line;
    line.run(1s, 1000);
    line.roundTrip = 600;
    line.frames = 0;
    line.run(3s, 1000);
    EXPECT_LE(line.frames, 6) << "one per round trip";
    EXPECT_GE(line.frames, 4) << "and never none, or the round trip would not be measured again";
    line.roundTrip = 50;
    line.frames = 0;
    line.run(1s, 1000);
    EXPECT_GE(line.frames, 25);
}

TEST(LagGuardTest, ALineThatStoppedComesBack) {
    Line line;
    line.run(1s, 1000);
    line.bytesPerTick = 0;
    line.frames = 0;
    line.run(20s, 10'000);
    EXPECT_EQ(line.frames, 1);
    line.bytesPerTick = 25'000;
    line.frames = 0;
    line.run(2s, 1000);
    EXPECT_GE(line.frames, 50);
}

} // namespace
} // namespace corvane::test
