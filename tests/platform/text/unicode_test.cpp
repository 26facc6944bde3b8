#include "platform/text/unicode.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace skyvane {
namespace {

using Pieces = std::vector<std::string_view>;

TEST(Unicode, trimmingTakesSpaceSeparatorsAndTabsButNoLineBreaks)
{
    EXPECT_EQ(Unicode::trimmed(" \t\u00a0\u2003\u3000ab c\u202f "), "ab c");
    EXPECT_EQ(Unicode::trimmed(" \n "), "\n");
    EXPECT_EQ(Unicode::trimmed("\u200bx"), "\u200bx");
    EXPECT_EQ(Unicode::trimmed("   "), "");
    EXPECT_EQ(Unicode::trimmed(""), "");
}

TEST(Unicode, trimmingLeavesMalformedBytesAlone)
{
    EXPECT_EQ(Unicode::trimmed(" \xff\xc2 "), "\xff\xc2");
}

TEST(Unicode, upperCasingIsFullAndKnowsNoLocale)
{
    EXPECT_EQ(Unicode::uppercased("straße ﬁx i é"), "STRASSE FIX I É");
}

TEST(Unicode, wordsAreCapitalizedOneByOne)
{
    EXPECT_EQ(Unicode::wordsCapitalized("CESSNA 172"), "Cessna 172");
    EXPECT_EQ(Unicode::wordsCapitalized("BOEING 737-800"), "Boeing 737-800");
    EXPECT_EQ(Unicode::wordsCapitalized("united airlines inc"), "United Airlines Inc");
    EXPECT_EQ(Unicode::wordsCapitalized("ÉCOLE DE L'AIR"), "École De L'air");
}

TEST(Unicode, charactersAreWhatPeopleSeeAsOne)
{
    EXPECT_EQ(Unicode::characters("ab"), (Pieces{"a", "b"}));
    EXPECT_EQ(Unicode::characters("e\u0301👨‍👩‍👧🇩🇪"),
        (Pieces{"e\u0301", "👨‍👩‍👧", "🇩🇪"}));
    EXPECT_EQ(Unicode::characters("a\r\nb"), (Pieces{"a", "\r\n", "b"}));
    EXPECT_EQ(Unicode::characters(""), Pieces{});
}

TEST(Unicode, linesBreakAfterBlanksAndHyphens)
{
    EXPECT_EQ(Unicode::lineSegments("set your home-base"), (Pieces{"set ", "your ", "home-", "base"}));
    EXPECT_EQ(Unicode::lineSegments("one\ntwo"), (Pieces{"one\n", "two"}));
}

TEST(Unicode, lettersAreAlphabeticInEveryScript)
{
    for (const char* letter : {"a", "É", "ß", "ж", "中", "ع"})
        EXPECT_TRUE(Unicode::isLetter(letter)) << letter;
    for (const char* other : {"1", " ", "-", "✈", "", "\xff"})
        EXPECT_FALSE(Unicode::isLetter(other)) << other;
}

TEST(Unicode, numbersAreWhateverHasANumericValue)
{
    for (const char* number : {"7", "٣", "½", "Ⅷ", "五"})
        EXPECT_TRUE(Unicode::isNumber(number)) << number;
    for (const char* other : {"a", " ", "", "\xff"})
        EXPECT_FALSE(Unicode::isNumber(other)) << other;
}

} // namespace
} // namespace skyvane
