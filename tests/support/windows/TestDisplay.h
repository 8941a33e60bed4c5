#pragma once

namespace corvane::test {

/// The user's own desktop, which is always there.
struct TestDisplay {
    bool isReady() const { return true; }
};

} // namespace corvane::test
