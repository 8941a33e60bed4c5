#pragma once

#include "xvfb/XvfbServer.h"

#include <dlfcn.h>

namespace corvane::test {

/// What the windows of a test are shown on, for as long as it lives. To be made before the
/// QApplication. One implementation per platform.
class TestDisplay {
public:
    TestDisplay() {
        m_server.use();
        qputenv("QT_QPA_PLATFORM", "xcb");
        // Kept to the end, so that the leak checker can tell the driver's allocations by its name.
        dlopen("/usr/lib/x86_64-linux-gnu/dri/swrast_dri.so", RTLD_LAZY | RTLD_NODELETE);
    }

    /// False when there is nothing to show windows on.
    bool isReady() const { return m_server.isRunning(); }

private:
    XvfbServer m_server;
};

} // namespace corvane::test
