#include "platform/text/at_most.h"

#include "platform/text/unicode.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace skyvane {
namespace {

std::string times(std::size_t count, std::string_view text)
{
    std::string result;
    for (std::size_t index = 0; index < count; ++index)
        result += text;
    return result;
}

constexpr std::string_view family = "\U0001F468\u200D\U0001F469\u200D\U0001F467\u200D\U0001F466";

TEST(AtMost, aTextThatFitsStaysAsItIs)
{
    for (const std::string_view one : {"a", "é", "e\u0301", "\U0001F1E9\U0001F1EA", "\r\n", "ก็"})
        EXPECT_EQ(Unicode::atMost(times(256, one)), times(256, one)) << one;
    EXPECT_EQ(Unicode::atMost(times(256, family)), times(256, family));
    EXPECT_EQ(Unicode::atMost(""), "");
}

TEST(AtMost, aLongerTextEndsWithAnEllipsisThere)
{
    for (const std::string_view one : {"a", "é", "e\u0301", "\U0001F1E9\U0001F1EA", "\r\n", "ก็"})
        EXPECT_EQ(Unicode::atMost(times(257, one)), times(255, one) + "…") << one;
    EXPECT_EQ(Unicode::atMost(times(257, family)), times(255, family) + "…");
}

TEST(AtMost, theCallerMayWantLess)
{
    EXPECT_EQ(Unicode::atMost("a1b2c3", 6), "a1b2c3");
    EXPECT_EQ(Unicode::atMost("a1b2c3", 5), "a1b2…");
    EXPECT_EQ(Unicode::atMost("a1b2c3", 1), "…");
}

TEST(AtMost, whatWasCutIsNotCutAgain)
{
    const std::string cut = Unicode::atMost(times(1000, "ü"));
    EXPECT_EQ(Unicode::atMost(cut), cut);
}

TEST(AtMost, marksWithoutEndAreNoWayAround)
{
    const std::string marks = times(1'000'000, "\u0301");
    EXPECT_EQ(Unicode::atMost("Z" + marks), "…");
    EXPECT_EQ(Unicode::atMost("Ze" + marks), "Z…");
    EXPECT_LE(Unicode::atMost(times(300, "Z" + marks.substr(0, 2000))).size(), 8192U);
}

TEST(AtMost, aCharacterMayHave32BytesOnAverage)
{
    const std::string marks = times(15, "\u0301");
    EXPECT_EQ(Unicode::atMost("é" + marks, 1), "é" + marks);
    EXPECT_EQ(Unicode::atMost("Z\u0301" + marks, 1), "…"); // 33 bytes
}

TEST(AtMost, malformedBytesAreCharacters)
{
    EXPECT_EQ(Unicode::characters(Unicode::atMost(times(1000, "\xff"))).size(), 256U);
    EXPECT_EQ(Unicode::atMost(times(100'000, "\x80")), "…");
}

} // namespace
} // namespace skyvane
