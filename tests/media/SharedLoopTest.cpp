#include "SharedLoop.h"

#include <gtest/gtest.h>

#include <vector>

namespace corvane {
namespace {

TEST(SharedLoopTest, EveryStepIsDoneOnceBeforeTheRunReturns) {
    for (int life = 0; life < 20; ++life) {
        SharedLoop loop;
        for (int run = 0; run < 200; ++run) {
            // Plain integers: a step done twice, or still under way, is a race as well.
            std::vector<int> done(static_cast<size_t>(run % 20));
            loop.run(run % 20, [&done](int step) { ++done[static_cast<size_t>(step)]; });
            ASSERT_EQ(done, std::vector<int>(done.size(), 1)) << "run " << run;
        }
    }
}

} // namespace
} // namespace corvane
