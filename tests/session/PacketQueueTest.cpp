#include "session/PacketQueue.h"

#include <gtest/gtest.h>

#include <chrono>
#include <future>

namespace corvane::test {
namespace {

using namespace std::chrono_literals;

std::future<bool> waitLong(PacketQueue& queue) {
    return std::async(std::launch::async, [&queue] { return queue.waitForRoom(60s); });
}

bool isHeldBack(const std::future<bool>& waiting) {
    return waiting.wait_for(50ms) == std::future_status::timeout;
}

TEST(PacketQueueTest, KeepsTheOrderAndWakesOncePerBatch) {
    PacketQueue queue;
    for (int batch = 0; batch < 2; ++batch) {
        EXPECT_TRUE(queue.push({1}));
        EXPECT_FALSE(queue.push({2}));
        EXPECT_FALSE(queue.push({3}));
        for (uint8_t expected = 1; expected <= 3; ++expected) {
            EXPECT_EQ(queue.pop(), ByteVector{expected});
        }
        EXPECT_EQ(queue.pop(), std::nullopt);
    }
}

TEST(PacketQueueTest, HoldsTheProducerBackUntilThereIsFlowAndNothingWaits) {
    PacketQueue queue;
    auto room = waitLong(queue);
    EXPECT_TRUE(isHeldBack(room));
    queue.setFlowing(true);
    EXPECT_TRUE(room.get());

    queue.push({1});
    queue.push({2});
    EXPECT_FALSE(queue.waitForRoom(1ms));
    room = waitLong(queue);
    queue.pop();
    EXPECT_TRUE(isHeldBack(room));
    queue.pop();
    EXPECT_TRUE(room.get());
}

TEST(PacketQueueTest, ClosingReleasesTheProducerAndDropsEverything) {
    PacketQueue queue;
    queue.setFlowing(true);
    queue.push({1});
    auto room = waitLong(queue);
    EXPECT_TRUE(isHeldBack(room));
    queue.close();
    EXPECT_FALSE(room.get());
    EXPECT_FALSE(queue.push({1}));
    EXPECT_EQ(queue.pop(), std::nullopt);
}

} // namespace
} // namespace corvane::test
