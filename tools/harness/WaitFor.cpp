#include "harness/WaitFor.h"

#include <qtestsupport_core.h>

namespace corvane::harness {

using namespace std::chrono_literals;

bool waitFor(const std::function<bool()>& condition, std::chrono::milliseconds timeout) {
    return QTest::qWaitFor(condition, static_cast<int>(timeout.count()));
}

bool achieve(const std::function<void()>& step, const std::function<bool()>& result) {
    constexpr int kAttempts = 4;
    constexpr auto kTimeout = 3s;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        step();
        if (waitFor(result, kTimeout)) {
            return true;
        }
    }
    return false;
}

} // namespace corvane::harness
