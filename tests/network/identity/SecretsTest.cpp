#include "network/identity/PairingCodeGenerator.h"
#include "network/identity/PasswordPolicy.h"
#include "network/identity/SessionPasswordGenerator.h"
#include "support/MatchesPattern.h"

#include <gmock/gmock.h>

#include <set>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;

TEST(PasswordPolicy, NamesTheFirstRuleBroken) {
    const QString tooShort = u"Password must be at least 8 characters."_s;
    const QString noLower = u"Password must contain at least one lowercase letter."_s;
    const QString noUpper = u"Password must contain at least one uppercase letter."_s;
    const QString noDigit = u"Password must contain at least one digit."_s;
    const QString cases[][2] = {
        {u"Password1"_s, QString()}, {u"Pa1"_s, tooShort},      {QString(), tooShort},
        {u"Passwo1"_s, tooShort},    {u"PASSWORD1"_s, noLower}, {u"12345678"_s, noLower},
        {u"password1"_s, noUpper},   {u"Passwords"_s, noDigit}, {u"ÄÖÜßпароль٣"_s, QString()},
        {u"Password½²"_s, noDigit},
    };
    for (const auto& [password, violation] : cases) {
        EXPECT_EQ(PasswordPolicy::firstViolation(password), violation) << password.toStdString();
    }
}

TEST(SessionPassword, IsSixLowercaseLettersAndDigits) {
    std::set<char> seen;
    for (int i = 0; i < 300; ++i) {
        const std::string password = generateSessionPassword().toStdString();
        ASSERT_THAT(password, test::MatchesPattern("[a-z0-9]{6}"));
        seen.insert(password.begin(), password.end());
    }
    EXPECT_EQ(seen.size(), 36U) << "1800 draws miss a character once in 10^20 runs";
}

TEST(PairingCode, IsDrawnWithoutBias) {
    const auto drawn = [](std::vector<uint32_t> numbers) {
        size_t used = 0;
        const QString code = PairingCodeGenerator::draw([&] { return numbers.at(used++); });
        return std::pair(code.toStdString(), used);
    };
    using Draw = std::pair<std::string, size_t>;
    // 0 * 900000 has the low half 0: rejected. 1 * 900000 lies above the limit of 167296.
    EXPECT_EQ(drawn({0, 1}), Draw("100000", 2));
    EXPECT_EQ(drawn({1}), Draw("100000", 1));
    EXPECT_EQ(drawn({UINT32_MAX}), Draw("999999", 1));
    EXPECT_EQ(drawn({0x80000000, 0x80000001}), Draw("550000", 2));
    for (int i = 0; i < 1000; ++i) {
        ASSERT_THAT(PairingCodeGenerator::next().toStdString(),
                    test::MatchesPattern("[1-9][0-9]{5}"));
    }
}

} // namespace
} // namespace corvane
