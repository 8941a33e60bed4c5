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

TEST(FitRectangle, MapsPositionsInsideOnly) {
    const QRect picture(0, 218, 1000, 563);
    const std::pair<QPointF, std::optional<QPointF>> cases[] = {
        {{0, 218}, QPointF(0, 0)},    {{500, 499.5}, QPointF(0.5, 0.5)},
        {{1000, 781}, QPointF(1, 1)}, {{999.9, 217.9}, std::nullopt},
        {{-0.1, 300}, std::nullopt},  {{1000.1, 300}, std::nullopt},
        {{300, 781.5}, std::nullopt},
    };
    for (const auto& [position, fraction] : cases) {
        EXPECT_EQ(fractionWithin(picture, position), fraction)
            << position.x() << "," << position.y();
    }
    EXPECT_EQ(fractionWithin(QRect(5, 5, 0, 10), QPointF(5, 5)), std::nullopt);
}

} // namespace
} // namespace corvane
