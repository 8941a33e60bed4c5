#include "ui/WakeOnLan.h"

#include <gtest/gtest.h>

#include <optional>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;

TEST(WakeOnLanTest, RepeatsTheAddressSixteenTimes) {
    const QByteArray address = QByteArray::fromHex("01020aff0b10");
    for (const QString& text : {u"01:02:0a:ff:0b:10"_s, u"01-02-0A-FF-0B-10"_s, u"01020aFF0b10"_s,
                                u"01 02 0a ff 0b 10"_s}) {
        EXPECT_EQ(wakeOnLanPacket(text), QByteArray(6, '\xff') + address.repeated(16));
    }
    for (const QString& text : {u""_s, u"01:02:03"_s, u"01020aff0b1"_s, u"01020aff0b1g"_s,
                                u"01020aff0b10\n"_s, u"01020aff0b1000"_s}) {
        EXPECT_EQ(wakeOnLanPacket(text), std::nullopt) << text.toStdString();
    }
}

} // namespace
} // namespace corvane
