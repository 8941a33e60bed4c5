#include "TestDisplay.h"

#include <QApplication>
#include <QStandardPaths>
#include <gtest/gtest.h>

#include <cstdio>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) {
        return RUN_ALL_TESTS();
    }
    const corvane::test::TestDisplay display;
    if (!display.isReady()) {
        std::fputs("no display\n", stderr);
        return 1;
    }
    QStandardPaths::setTestModeEnabled(true);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
