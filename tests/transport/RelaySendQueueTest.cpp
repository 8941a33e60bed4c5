#include "transport/RelaySendQueue.h"

#include <gtest/gtest.h>

namespace corvane::test {
namespace {

using enum RelaySendQueue::Urgency;

TEST(RelaySendQueueTest, UrgentFramesOvertakeAndEachKindKeepsItsOrder) {
    RelaySendQueue queue;
    for (const auto& [urgency, frame] :
         {std::pair{Bulk, "b1"}, {Video, "v1"}, {Bulk, "b2"}, {Control, "c1"}, {Video, "v2"}}) {
        queue.push(urgency, frame);
    }
    queue.push(Control, "c2");
    QByteArrayList order;
    while (const auto frame = queue.pop()) {
        order << *frame;
    }
    EXPECT_EQ(order, (QByteArrayList{"c1", "c2", "v1", "v2", "b1", "b2"}));
    EXPECT_TRUE(queue.isEmpty());
}

TEST(RelaySendQueueTest, KnowsHowMuchVideoHasNotLeft) {
    RelaySendQueue queue;
    queue.push(Video, QByteArray(100, 'v'));
    queue.push(Bulk, QByteArray(1000, 'b'));
    queue.pop();
    queue.push(Video, QByteArray(10, 'w'));
    EXPECT_EQ(queue.videoBytes(40), 50) << "the rest of the first and the second";
    queue.pop();
    queue.pop();
    EXPECT_EQ(queue.videoBytes(1050), 50) << "in front of a block of a file";
    EXPECT_EQ(queue.videoBytes(1000), 0) << "only the file is left";
    EXPECT_EQ(queue.videoBytes(0), 0);
    EXPECT_EQ(queue.bytes(), 0);
}

} // namespace
} // namespace corvane::test
