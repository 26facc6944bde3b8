#include "platform/json/source.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(JSONSource, aMemberStandsAsItWasWritten)
{
    constexpr std::string_view text
        = R"( { "a" : [ {"b":1} , "]\"" ], "b":{"c": 1.50 },"\u0062x" :-0E+1 , "d":"x\\"	,"e":null} )";
    EXPECT_EQ(JSON::memberSource(text, "a"), R"([ {"b":1} , "]\"" ])");
    EXPECT_EQ(JSON::memberSource(text, "b"), R"({"c": 1.50 })");
    EXPECT_EQ(JSON::memberSource(text, "bx"), "-0E+1");
    EXPECT_EQ(JSON::memberSource(text, "d"), R"("x\\")");
    EXPECT_EQ(JSON::memberSource(text, "e"), "null");
    EXPECT_EQ(JSON::memberSource(text, "c"), std::nullopt);
    EXPECT_EQ(JSON::memberSource("{}", "a"), std::nullopt);
    EXPECT_EQ(JSON::memberSource(R"({"a":"b"})", "b"), std::nullopt);
}

TEST(JSONSource, ofTwoEqualKeysTheFirstCounts)
{
    EXPECT_EQ(JSON::memberSource(R"({"a":1,"a":2})", "a"), "1");
}

} // namespace
} // namespace skyvane
