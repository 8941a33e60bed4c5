#include "FitRectangle.h"
#include "PartnerId.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;

TEST(FitRectangle, KeepsProportionsAndCentres) {
    const struct {
        QSize picture, area;
        QRect fitted;
    } cases[] = {
        {{1920, 1080}, {1000, 1000}, {0, 218, 1000, 563}},
        {{1080, 1920}, {1000, 1000}, {218, 0, 563, 1000}},
        {{1920, 1080}, {960, 540}, {0, 0, 960, 540}},
        {{64, 64}, {401, 300}, {50, 0, 300, 300}},
        {{100, 30000}, {200, 150}, {99, 0, 1, 150}},
        {{0, 0}, {640, 480}, {0, 0, 640, 480}},
        {{1920, 0}, {640, 480}, {0, 0, 640, 480}},
        {{1920, 1080}, {0, 0}, {0, 0, 0, 0}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(fitRectangle(c.picture, c.area), c.fitted)
            << c.picture.width() << "x" << c.picture.height();
    }
}

TEST(FitRectangle, MapsPositionsInsideOnly) {
    const QRect picture(0, 218, 1000, 563);
    const struct {
        QPointF position;
        std::optional<QPointF> fraction;
    } cases[] = {
        {{0, 218}, QPointF(0, 0)},    {{500, 499.5}, QPointF(0.5, 0.5)},
        {{1000, 781}, QPointF(1, 1)}, {{999.9, 217.9}, std::nullopt},
        {{-0.1, 300}, std::nullopt},  {{1000.1, 300}, std::nullopt},
        {{300, 781.5}, std::nullopt},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(fractionWithin(picture, c.position), c.fraction)
            << c.position.x() << "," << c.position.y();
    }
    EXPECT_EQ(fractionWithin(QRect(5, 5, 0, 10), QPointF(5, 5)), std::nullopt);
}

TEST(PartnerId, IsFormattedAndValidated) {
    const struct {
        QString typed, shown;
        bool valid;
    } cases[] = {
        {u"123456789"_s, u"123 456 789"_s, true},
        {u" 12 34567 89 "_s, u"123 456 789"_s, true},
        {u"12345678"_s, u"12345678"_s, false},
        {u"1 2345 67890"_s, u"1 2345 67890"_s, false},
        {u"12345678x"_s, u"123 456 78x"_s, false},
        {u"123456789\n"_s, u"123456789\n"_s, false},
        {u"12345678\n"_s, u"123 456 78\n"_s, false},
        {u"١٢٣٤٥٦٧٨٩"_s, u"١٢٣ ٤٥٦ ٧٨٩"_s, false},
        {QString(), QString(), false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(formatPartnerId(c.typed), c.shown) << c.typed.toStdString();
        EXPECT_EQ(isPartnerId(barePartnerId(c.typed)), c.valid) << c.typed.toStdString();
    }
}

} // namespace
} // namespace corvane
