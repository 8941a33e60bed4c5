#include "TestDisplay.h"

#include "XvfbServer.h"

#include <dlfcn.h>

namespace corvane::test {

struct TestDisplay::Server {
    XvfbServer xvfb;
};

TestDisplay::TestDisplay() : m_server(std::make_unique<Server>()) {
    m_server->xvfb.use();
    qputenv("QT_QPA_PLATFORM", "xcb");
    // Kept to the end, so that the leak checker can tell the driver's allocations by its name.
    dlopen("/usr/lib/x86_64-linux-gnu/dri/swrast_dri.so", RTLD_LAZY | RTLD_NODELETE);
}

TestDisplay::~TestDisplay() = default;

bool TestDisplay::isReady() const {
    return m_server->xvfb.isRunning();
}

} // namespace corvane::test
