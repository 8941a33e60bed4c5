#include "common/JsonFields.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

TEST(JsonFields, OnlyAStringInAnObjectIsAString) {
    const auto object = parseJson(R"({"text":"a","number":7,"null":null,"nested":{"text":"b"}})");
    EXPECT_EQ(jsonString(object, "text"), QStringLiteral("a"));
    for (const char* key : {"number", "null", "nested", "missing"}) {
        EXPECT_FALSE(jsonString(object, key).has_value()) << key;
    }
    for (const char* text : {"[\"text\"]", "\"text\"", "null", "{broken"}) {
        EXPECT_FALSE(jsonString(parseJson(text), "text").has_value()) << text;
    }
}

TEST(JsonFields, BrokenTextIsReportedNotThrown) {
    std::string error;
    EXPECT_TRUE(parseJson("{\"a\":", &error).is_discarded());
    EXPECT_FALSE(error.empty());
    EXPECT_TRUE(parseJson("\"\xff\"").is_discarded());
}

TEST(JsonFields, DeepNestingIsRefusedBeforeItCanExhaustTheStack) {
    const auto nested = [](size_t depth) {
        return std::string(depth, '[') + std::string(depth, ']');
    };
    EXPECT_EQ(jsonText(parseJson(nested(60))), nested(60));
    std::string error;
    EXPECT_TRUE(parseJson(nested(1'000'000), &error).is_discarded());
    EXPECT_EQ(error, "nested too deeply");
}

TEST(JsonFields, TextIsCompactSortedAndSurvivesBrokenUtf8) {
    EXPECT_EQ(jsonText({{"type", "AUTH"}, {"token", "t"}}), R"({"token":"t","type":"AUTH"})");
    EXPECT_NO_THROW(jsonText({{"name", "\xff"}}));
}

} // namespace
} // namespace corvane
