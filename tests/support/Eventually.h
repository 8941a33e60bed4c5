#pragma once

#include <QTest>

namespace corvane::test {

/// Runs the event loop until `holds` does; false when that takes longer.
template <typename Condition>
bool eventually(Condition holds, int timeoutMs = 10'000) {
    return QTest::qWaitFor(holds, timeoutMs);
}

} // namespace corvane::test
