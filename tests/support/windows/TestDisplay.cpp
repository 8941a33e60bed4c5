#include "TestDisplay.h"

namespace corvane::test {

// The user's own desktop, which is always there.
struct TestDisplay::Server {};

TestDisplay::TestDisplay() = default;

TestDisplay::~TestDisplay() = default;

bool TestDisplay::isReady() const {
    return true;
}

} // namespace corvane::test
