#include "XvfbServer.h"

#include <QApplication>
#include <QStandardPaths>
#include <gtest/gtest.h>

#include <cstdio>
#include <dlfcn.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) {
        return RUN_ALL_TESTS();
    }
    const corvane::test::XvfbServer display;
    if (!display.isRunning()) {
        std::fputs("Xvfb did not start\n", stderr);
        return 1;
    }
    display.use();
    qputenv("QT_QPA_PLATFORM", "xcb");
    QStandardPaths::setTestModeEnabled(true);
    // Kept to the end, so that the leak checker can tell the driver's allocations by its name.
    dlopen("/usr/lib/x86_64-linux-gnu/dri/swrast_dri.so", RTLD_LAZY | RTLD_NODELETE);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
