#pragma once

#include <memory>

namespace corvane::test {

/// What the windows of a test are shown on, for as long as it lives. To be made before the
/// QApplication. One implementation per platform.
class TestDisplay {
public:
    TestDisplay();
    ~TestDisplay();
    TestDisplay(const TestDisplay&) = delete;
    TestDisplay& operator=(const TestDisplay&) = delete;

    /// False when there is nothing to show windows on.
    bool isReady() const;

private:
    struct Server;
    std::unique_ptr<Server> m_server;
};

} // namespace corvane::test
