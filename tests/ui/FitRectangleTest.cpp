#include "ui/FitRectangle.h"

#include <gtest/gtest.h>

#include <optional>

namespace corvane {
namespace {

TEST(FitRectangle, KeepsProportionsAndCentres) {
    const std::tuple<QSize, QSize, QRect> cases[] = {
        {{1920, 1080}, {1000, 1000}, {0, 218, 1000, 563}},
        {{1080, 1920}, {1000, 1000}, {218, 0, 563, 1000}},
        {{64, 64}, {401, 300}, {50, 0, 300, 300}},
        {{100, 30000}, {200, 150}, {99, 0, 1, 150}},
        {{0, 0}, {640, 480}, {0, 0, 640, 480}},
        {{1920, 1080}, {0, 0}, {0, 0, 0, 0}},
    };
    for (const auto& [picture, area, fitted] : cases) {
        EXPECT_EQ(fitRectangle(picture, area), fitted)
            << picture.width() << "x" << picture.height();
    }
}

TEST(FitRectangle, NothingIsWithinAnEmptyPicture) {
    EXPECT_EQ(fractionWithin(QRect(5, 5, 0, 10), QPointF(5, 5)), std::nullopt);
}

} // namespace
} // namespace corvane
