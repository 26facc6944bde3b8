#include "platform/text/unicode.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <unicode/brkiter.h>
#include <unicode/locid.h>
#include <unicode/utext.h>
#include <vector>

namespace skyvane {
namespace {

using Pieces = std::vector<std::string_view>;

/// What the library breaks a text into by its rules.
Pieces librarys(icu::BreakIterator* (*make)(const icu::Locale&, UErrorCode&), const std::string& text)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::BreakIterator> breaks{make(icu::Locale::getRoot(), status)};
    const std::unique_ptr<UText, decltype(&utext_close)> bytes{
        utext_openUTF8(nullptr, text.data(), static_cast<std::int64_t>(text.size()), &status), utext_close};
    breaks->setText(bytes.get(), status);
    EXPECT_TRUE(U_SUCCESS(status));
    Pieces pieces;
    std::int32_t start = 0;
    for (std::int32_t end = breaks->next(); end != icu::BreakIterator::DONE;
         start = end, end = breaks->next())
        pieces.push_back(std::string_view{text}.substr(
            static_cast<std::size_t>(start), static_cast<std::size_t>(end - start)));
    return pieces;
}

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
    EXPECT_EQ(Unicode::wordsCapitalized("CESSNA 172R Cutlass RG"), "Cessna 172R Cutlass Rg");
    EXPECT_EQ(Unicode::wordsCapitalized("BOEING 737-8AS"), "Boeing 737-8As");
    EXPECT_EQ(Unicode::wordsCapitalized("2EXCEL AVIATION LTD, 3D"), "2Excel Aviation Ltd, 3D");
    EXPECT_EQ(Unicode::wordsCapitalized("1ST ǆungla 42"), "1St ǅungla 42");
    EXPECT_EQ(Unicode::wordsCapitalized("ÉCOLE DE L'AIR"), "École De L'air");
    EXPECT_EQ(Unicode::wordsCapitalized(""), "");
}

TEST(Unicode, aWordEndsAtPunctuationButNotAtAnApostrophe)
{
    EXPECT_EQ(Unicode::wordsCapitalized("U.S. AIR FORCE"), "U.S. Air Force");
    EXPECT_EQ(Unicode::wordsCapitalized("A.B.C. AIR"), "A.B.C. Air");
    EXPECT_EQ(Unicode::wordsCapitalized("WWW.AIR-TAXI.EU, S.À.R.L."), "Www.Air-Taxi.Eu, S.À.R.L.");
    EXPECT_EQ(Unicode::wordsCapitalized("AIR_TAXI:COL·LEGI (UK)/EU"), "Air_Taxi:Col·Legi (Uk)/Eu");
    EXPECT_EQ(Unicode::wordsCapitalized("O'BRIEN’S JET"), "O'brien’s Jet");
    EXPECT_EQ(Unicode::wordsCapitalized("E\u0301COLE.E\u0301TAT"), "E\u0301cole.E\u0301tat");
    EXPECT_EQ(Unicode::wordsCapitalized(".A\xff.B\xe2"), ".A\xff.B\xe2");
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

TEST(Unicode, lineSegmentsAndCharactersOfWesternTextsAreThoseOfTheLibrary)
{
    const std::vector<std::string> alphabet{"a", "Z", "0", "9", " ", " ", ".", ",", ":", "·", "é", "ß", "×",
        "÷", "ÿ", "-", "…", "/", "\u00a0", "\u00ad", "\n"};
    std::mt19937 random{7};
    for (int turn = 0; turn < 20'000; ++turn) {
        // Most texts are of what needs no rules, some are not.
        const std::size_t letters = alphabet.size() - (turn % 4 == 0 ? 0 : 6);
        std::string text;
        for (std::size_t length = random() % 9; length > 0; --length)
            text += alphabet[random() % letters];
        ASSERT_EQ(Unicode::lineSegments(text), librarys(icu::BreakIterator::createLineInstance, text))
            << text;
        ASSERT_EQ(Unicode::characters(text), librarys(icu::BreakIterator::createCharacterInstance, text))
            << text;
    }
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
