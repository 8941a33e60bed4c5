#include "RelayCandidate.h"

#include <gtest/gtest.h>

#include <vector>

namespace corvane {
namespace {

TEST(RelayCandidate, SmallestKnownMetricWinsAndTiesKeepTheEarlier) {
    struct Case {
        std::vector<int32_t> metrics;
        int chosen; ///< index, -1 = none
    };
    const Case cases[] = {
        {{}, -1},        {{-1}, 0},        {{-1, 30, 20, 20}, 2}, {{-1, -5}, 0},
        {{5, -1, 5}, 0}, {{10, 0, -1}, 1}, {{-1, 7}, 1},          {{20, 30}, 0},
    };
    for (const Case& item : cases) {
        std::vector<RelayCandidate> candidates;
        for (const int32_t metric : item.metrics) {
            candidates.push_back({QString(), QString(), 0, metric});
        }
        const RelayCandidate* choice = preferredRelay(candidates);
        const auto index = choice == nullptr ? -1 : choice - candidates.data();
        EXPECT_EQ(index, item.chosen) << "of " << item.metrics.size() << " candidates";
    }
}

} // namespace
} // namespace corvane
