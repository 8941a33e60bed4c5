#include "common/PartnerId.h"
#include "common/ShownNames.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;

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

TEST(ShownNames, FitOnTheScreen) {
    EXPECT_EQ(shownNames({u"a\nb\u202e"_s, u"<b>"_s}), u"a b\n<b>"_s);
    EXPECT_EQ(shownName(u"😀.txt"_s), u"😀.txt"_s);
    EXPECT_EQ(shownName(QString(100, u'W')).size(), 61);
    const QString many = shownNames(QStringList(500, QString(1000, u'W')));
    EXPECT_EQ(many.count(u'\n'), 12);
    EXPECT_TRUE(many.endsWith(u"\n… (+488)"));
}

} // namespace
} // namespace corvane
