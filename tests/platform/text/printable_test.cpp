#include "platform/text/printable.h"

#include "platform/text/unicode.h"

#include <gtest/gtest.h>

namespace skyvane {

namespace {

using Unicode::oneLine;
using Unicode::printable;

} // namespace

TEST(PrintableText, whatCanBeReadStaysAsItIs)
{
    for (const char* text : {"", "UAL123", "Zürich – Köln", "مطار", "東京", "👨‍👩‍👧‍👦",
             "क्‍ष", "e\u0301", "a\tb", "one\ntwo", "❤\uFE0F"})
        EXPECT_EQ(printable(text), text);
}

TEST(PrintableText, controlsBecomeBlanks)
{
    EXPECT_EQ(printable("\x1b[31mred\x07\x7f"), " [31mred  ");
    EXPECT_EQ(printable(std::string("a\0b", 3)), "a b");
    EXPECT_EQ(printable("a\u009b31mb\u0080\u009f"), "a 31mb  ");
    for (char control = 1; control < ' '; ++control)
        EXPECT_EQ(oneLine(std::string(1, control)), " ") << static_cast<int>(control);
}

TEST(PrintableText, embeddingsAndOverridesOfDirectionAndOtherFormatsAreLeftOut)
{
    for (const char* mark : {"\u202A", "\u202B", "\u202C", "\u202D", "\u202E", "\u2066", "\u2067", "\u2068",
             "\u2069", "\u200B", "\u2060", "\uFEFF", "\u00AD", "\U000E0041"})
        EXPECT_EQ(printable(std::string{"a"} + mark + "b"), "ab");
}

TEST(PrintableText, marksOfDirectionStayAsNumbersOfSomeLanguagesHaveThem)
{
    for (const std::string text : {"a\u200Eb", "a\u200Fb", "\u061C-١٥٠"})
        EXPECT_EQ(printable(text), text);
}

TEST(PrintableText, whatIsNoCharacterIsSeenToBeNone)
{
    EXPECT_EQ(printable("a\x9b\xff"), "a\uFFFD\uFFFD"); // A lone byte is a control to some terminals.
    EXPECT_EQ(printable("\uE000\uFFFF\U0010FFFE"), "\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(printable("\xed\xa0\x80"), "\uFFFD\uFFFD\uFFFD"); // Half of a pair.
}

TEST(PrintableText, everyLineBreakIsTheSame)
{
    for (const char* text : {"a\nb", "a\rb", "a\r\nb", "a\vb", "a\fb", "a\u0085b", "a\u2028b", "a\u2029b"}) {
        EXPECT_EQ(printable(text), "a\nb");
        EXPECT_EQ(oneLine(text), "a b");
    }
    EXPECT_EQ(printable("a\n\rb\r"), "a\n\nb\n");
}

TEST(PrintableText, aLineHasNeitherBreaksNorTabsAndIsShort)
{
    EXPECT_EQ(oneLine("one\ttwo\nthree"), "one two three");
    EXPECT_EQ(oneLine(std::string(257, 'a')), std::string(255, 'a') + "…");
    EXPECT_EQ(oneLine(std::string(1025, 'a'), Unicode::longestLine), std::string(1023, 'a') + "…");
    EXPECT_EQ(oneLine("abc", 2), "a…");
}

TEST(PrintableText, itNeverGrowsPastItsBound)
{
    std::string breaks;
    for (int count = 0; count < 300; ++count)
        breaks += count % 2 == 0 ? "\r\n" : "\xff";
    for (const std::string& text : {breaks, std::string(3'000'000, '\xff'), std::string(3'000'000, '\x1b')}) {
        const std::string line = oneLine(text);
        EXPECT_LE(Unicode::characters(line).size(), Unicode::longestShown);
        EXPECT_EQ(oneLine(line), line);
    }
}

} // namespace skyvane
