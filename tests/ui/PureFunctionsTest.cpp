#include "common/PartnerId.h"
#include "common/ShownNames.h"
#include "common/ValueFormats.h"
#include "services/RemotePath.h"
#include "ui/FitRectangle.h"

#include <gtest/gtest.h>

#include <optional>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;

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

TEST(PartnerId, IsFormattedAndValidated) {
    const std::tuple<QString, QString, bool> cases[] = {
        {u"123456789"_s, u"123 456 789"_s, true},  {u" 12 34567 89 "_s, u"123 456 789"_s, true},
        {u"12345678"_s, u"12345678"_s, false},     {u"1 2345 67890"_s, u"1 2345 67890"_s, false},
        {u"12345678x"_s, u"123 456 78x"_s, false}, {u"12345678\n"_s, u"123 456 78\n"_s, false},
        {u"١٢٣٤٥٦٧٨٩"_s, u"١٢٣ ٤٥٦ ٧٨٩"_s, false}, {QString(), QString(), false},
    };
    for (const auto& [typed, shown, valid] : cases) {
        EXPECT_EQ(formatPartnerId(typed), shown) << typed.toStdString();
        EXPECT_EQ(isPartnerId(barePartnerId(typed)), valid) << typed.toStdString();
    }
}

TEST(RemotePath, JoinsAndGoesUpWithEitherSeparator) {
    const std::tuple<QString, QString, std::optional<QString>> cases[] = {
        {u""_s, u"x"_s, std::nullopt},
        {u"/"_s, u"/x"_s, u""_s},
        {u"/home"_s, u"/home/x"_s, u""_s},
        {u"/home/bob"_s, u"/home/bob/x"_s, u"/home"_s},
        {uR"(C:\Users\bob)"_s, uR"(C:\Users\bob/x)"_s, uR"(C:\Users)"_s},
        {u"C:/Users"_s, u"C:/Users/x"_s, u"C:"_s},
        {u"C:"_s, u"C:/x"_s, u""_s},
        {uR"(C:\)"_s, uR"(C:\x)"_s, u""_s},
        {u"C:/Users\\bob/x"_s, u"C:/Users\\bob/x/x"_s, u"C:/Users\\bob"_s},
    };
    for (const auto& [path, joined, parent] : cases) {
        EXPECT_EQ(joinRemotePath(path, u"x"_s), joined);
        EXPECT_EQ(parentRemotePath(path), parent) << path.toStdString();
    }
}

TEST(RemotePath, TakesOnlyNamesThatStayInTheirFolder) {
    for (const QString& name : {u"a"_s, u"..a"_s, u"a b…ü.txt"_s, u"12:30.log"_s, u"..."_s}) {
        EXPECT_TRUE(isPlainFileName(name)) << name.toStdString();
    }
    for (const QString& name : {u""_s, u"."_s, u".."_s, u"/etc/passwd"_s, u"../x"_s, u"a/b"_s,
                                uR"(..\x)"_s, QString(u'a') + QChar(0) + u'b'}) {
        EXPECT_FALSE(isPlainFileName(name)) << name.toStdString();
    }
}

TEST(ShownNames, FitOnTheScreen) {
    EXPECT_EQ(shownNames({u"a\nb\u202e"_s, u"<b>"_s}), u"a b\n<b>"_s);
    EXPECT_EQ(shownName(u"😀.txt"_s), u"😀.txt"_s);
    EXPECT_EQ(shownName(QString(100, u'W')).size(), 61);
    const QString many = shownNames(QStringList(500, QString(1000, u'W')));
    EXPECT_EQ(many.count(u'\n'), 12);
    EXPECT_TRUE(many.endsWith(u"\n… (+488)"));
}

TEST(ValueFormats, RoundAsShown) {
    const std::pair<quint64, QString> sizes[] = {
        {1023, u"1023 B"_s},
        {1024, u"1.0 KB"_s},
        {1'073'741'823, u"1024.0 MB"_s},
        {~quint64{0}, u"17179869184.00 GB"_s},
    };
    for (const auto& [bytes, shown] : sizes) {
        EXPECT_EQ(formatByteSize(bytes), shown);
    }
    EXPECT_EQ(formatDuration(360'000), u"100:00:00"_s);
}

} // namespace
} // namespace corvane
