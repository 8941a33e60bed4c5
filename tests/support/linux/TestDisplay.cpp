#include "TestDisplay.h"

#include "XvfbServer.h"

namespace corvane::test {

struct TestDisplay::Server {
    XvfbServer xvfb;
};

TestDisplay::TestDisplay() : m_server(std::make_unique<Server>()) {
    m_server->xvfb.use();
    qputenv("QT_QPA_PLATFORM", "xcb");
}

TestDisplay::~TestDisplay() = default;

bool TestDisplay::isReady() const {
    return m_server->xvfb.isRunning();
}

} // namespace corvane::test
