#include "session/LossDetector.h"

#include <gtest/gtest.h>

#include <limits>

namespace corvane {
namespace {

using namespace std::chrono_literals;

constexpr auto kReorderWindow = 200ms;

TEST(LossDetectorTest, AMissingMessageIsLostWhenItStaysAwayTooLong) {
    const LossDetector::Time start{};
    LossDetector losses(kReorderWindow);
    for (const uint64_t counter : {0U, 1U, 4U, 3U}) { // 2 is missing, 3 was overtaken
        EXPECT_TRUE(losses.note(counter, start));
        EXPECT_FALSE(losses.note(counter, start)) << "a repetition";
    }
    EXPECT_FALSE(losses.takeLoss(start + kReorderWindow - 1ms));
    EXPECT_TRUE(losses.takeLoss(start + kReorderWindow));
    EXPECT_FALSE(losses.takeLoss(start + 2 * kReorderWindow)) << "reported twice";
    EXPECT_FALSE(losses.note(2, start)) << "given up";

    losses.note(9, start);
    for (const uint64_t counter : {6U, 8U, 5U, 7U, 7U, 2U}) {
        losses.note(counter, start + 10ms);
    }
    EXPECT_FALSE(losses.isAnythingMissing());

    losses.note(20, start);
    losses.forgetBefore(20);
    EXPECT_FALSE(losses.isAnythingMissing());

    LossDetector begunLate(kReorderWindow);
    begunLate.note(1, start);
    EXPECT_TRUE(begunLate.takeLoss(start + kReorderWindow)) << "the first message";
}

TEST(LossDetectorTest, InventedCountersCostNeitherMemoryNorTime) {
    LossDetector losses(kReorderWindow);
    for (uint64_t i = 0; i < 100'000; ++i) {
        losses.note(2 * i + 1, {});
    }
    losses.note(std::numeric_limits<uint64_t>::max(), {});
    losses.note(std::numeric_limits<uint64_t>::max(), {});
    EXPECT_TRUE(losses.takeLoss({}));
}

} // namespace
} // namespace corvane
