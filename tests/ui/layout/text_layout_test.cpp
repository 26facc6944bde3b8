#include "ui/layout/text_layout.h"

#include "tests/ui/layout/even_measurer.h"
#include "tests/ui/layout/infinity.h"

#include <gmock/gmock.h>

namespace skyvane {

namespace {

using testing::DoubleNear;
using testing::ElementsAre;

Text tenPointText(std::string string, std::optional<int> lineLimit = std::nullopt, double minimumScale = 1)
{
    return {
        .string = std::move(string),
        .font = {.size = 10},
        .color = {0, 0, 0},
        .lineLimit = lineLimit,
        .minimumScale = minimumScale,
    };
}

TextBlock laidOut(const Text& text, double width)
{
    return layoutText(text, width, test::EvenMeasurer{});
}

std::vector<std::string> lines(const Text& text, double width)
{
    std::vector<std::string> strings;
    for (const TextBlock::Line& line : laidOut(text, width).lines)
        strings.push_back(line.string);
    return strings;
}

} // namespace

TEST(TextLayout, aTextIsAsWideAsMeasuredAndOneLineHigh)
{
    EXPECT_EQ(laidOut(tenPointText("N123AB"), infinity).size(), (Size{.width = 36, .height = 10}));
}

TEST(TextLayout, anEmptyTextIsOneLineHighAndHasNoWidth)
{
    EXPECT_EQ(laidOut(tenPointText(""), 100).size(), (Size{.width = 0, .height = 10}));
    EXPECT_EQ(laidOut(tenPointText("", 1), 0).size(), (Size{.width = 0, .height = 10}));
    EXPECT_EQ(laidOut(tenPointText("", 1, 0.5), 0).size(), (Size{.width = 0, .height = 10}));
}

TEST(TextLayout, trackingFollowsEveryCharacter)
{
    Text text = tenPointText("ABC");
    text.tracking = 2;
    EXPECT_DOUBLE_EQ(laidOut(text, infinity).size().width, 3 * (6 + 2));
}

TEST(TextLayout, aTextOfferedItsIdealWidthNeitherWrapsNorTruncates)
{
    const Text once = tenPointText("12,500 ft", 1);
    EXPECT_THAT(lines(once, 54 - 0.005), ElementsAre("12,500 ft"));
    EXPECT_THAT(lines(tenPointText("12,500 ft"), 54 - 0.005), ElementsAre("12,500 ft"));
    EXPECT_THAT(lines(once, 54 - 0.02), ElementsAre("12,500…"));
}

TEST(TextLayout, aLineThatDoesNotFitEndsInAnEllipsis)
{
    EXPECT_THAT(lines(tenPointText("Lufthansa", 1), 36), ElementsAre("Lufth…"));
}

TEST(TextLayout, blanksBeforeTheEllipsisAreDropped)
{
    EXPECT_THAT(lines(tenPointText("Air France", 1), 30), ElementsAre("Air…"));
}

TEST(TextLayout, truncationKeepsCharactersWhole)
{
    EXPECT_THAT(lines(tenPointText("e\u0301e\u0301e\u0301e\u0301", 1), 18), ElementsAre("e\u0301e\u0301…"));
}

TEST(TextLayout, theEllipsisStandsAloneWhereNothingFits)
{
    EXPECT_THAT(lines(tenPointText("Lufthansa", 1), 6), ElementsAre("…"));
    EXPECT_THAT(lines(tenPointText("Lufthansa", 1), 1), ElementsAre("…"));
}

TEST(TextLayout, aLimitedTextOfferedNothingIsNothing)
{
    EXPECT_EQ(laidOut(tenPointText("Lufthansa", 1), 0).size(), (Size{.width = 0, .height = 10}));
    EXPECT_EQ(laidOut(tenPointText("Lufthansa", 1), -5).size(), (Size{.width = 0, .height = 10}));
}

TEST(TextLayout, aLineShrinksJustEnoughToFit)
{
    const TextBlock block = laidOut(tenPointText("Lufthansa", 1, 0.5), 43.2);
    EXPECT_THAT(
        block.lines, ElementsAre(TextBlock::Line{.string = "Lufthansa", .width = block.size().width}));
    EXPECT_THAT(block.face.size, DoubleNear(8, 1e-9));
    EXPECT_THAT(block.size().width, DoubleNear(43.2, 1e-9));
    EXPECT_THAT(block.size().height, DoubleNear(8, 1e-9));
}

TEST(TextLayout, aTextThatFitsDoesNotShrink)
{
    EXPECT_EQ(laidOut(tenPointText("KLM", 1, 0.5), 200).face.size, 10);
}

TEST(TextLayout, aSmallestScaleOfOneOrMoreLeavesTheSize)
{
    for (const double scale : {1.0, 1.5, 1e9}) {
        EXPECT_THAT(lines(tenPointText("Lufthansa", 1, scale), 36), ElementsAre("Lufth…")) << scale;
        EXPECT_EQ(laidOut(tenPointText("Lufthansa", 1, scale), 36).face.size, 10) << scale;
    }
}

TEST(TextLayout, aLineThatIsTooLongEvenShrunkIsTruncatedAtTheSmallestScale)
{
    const TextBlock block = laidOut(tenPointText("Lufthansa", 1, 0.5), 18);
    EXPECT_EQ(block.face.size, 5);
    EXPECT_EQ(block.lines.at(0).string, "Lufth…");
}

TEST(TextLayout, trackingShrinksWithTheFace)
{
    Text text = tenPointText("ABCD", 1, 0.5);
    text.tracking = 2;
    const TextBlock block = laidOut(text, 24);
    EXPECT_THAT(block.face.size, DoubleNear(7.5, 1e-9));
    EXPECT_THAT(block.tracking, DoubleNear(1.5, 1e-9));
}

TEST(TextLayout, aTextWithoutALimitWrapsBetweenWords)
{
    EXPECT_THAT(lines(tenPointText("No aircraft in range"), 72), ElementsAre("No aircraft", "in range"));
}

TEST(TextLayout, trailingBlanksOfAWrappedLineHaveNoWidth)
{
    EXPECT_THAT(lines(tenPointText("ab   cd"), 12), ElementsAre("ab", "cd"));
    EXPECT_EQ(laidOut(tenPointText("ab   cd"), 12).size(), (Size{.width = 12, .height = 20}));
}

TEST(TextLayout, blanksAtTheEndOfATextStayWhereTheyFit)
{
    EXPECT_THAT(lines(tenPointText("one two  "), 30), ElementsAre("one", "two  "));
    EXPECT_THAT(lines(tenPointText("one two  "), 24), ElementsAre("one", "two"));
}

TEST(TextLayout, aWordWiderThanTheLineBreaksBetweenCharacters)
{
    EXPECT_THAT(lines(tenPointText("an Airspeed"), 24), ElementsAre("an", "Airs", "peed"));
    EXPECT_THAT(lines(tenPointText("Airspeed a b"), 30), ElementsAre("Airsp", "eed a", "b"));
}

TEST(TextLayout, oneCharacterALineIsTheNarrowest)
{
    EXPECT_THAT(lines(tenPointText("a bcd"), 0), ElementsAre("a", "b", "c", "d"));
    EXPECT_THAT(lines(tenPointText("abc"), 1), ElementsAre("a", "b", "c"));
    EXPECT_THAT(lines(tenPointText("a\n\nb"), 0), ElementsAre("a", "", "b"));
}

TEST(TextLayout, lineBreaksInTheTextAreKept)
{
    EXPECT_THAT(lines(tenPointText("one\ntwo\r\n\nthree"), infinity), ElementsAre("one", "two", "", "three"));
}

TEST(TextLayout, theLastLineOfALimitedTextIsTruncated)
{
    EXPECT_THAT(lines(tenPointText("one two three four", 2), 42), ElementsAre("one two", "three…"));
    EXPECT_THAT(lines(tenPointText("Airspeed", 2), 18), ElementsAre("Air", "sp…"));
}

TEST(TextLayout, aLimitThatIsNotReachedTruncatesNothing)
{
    EXPECT_THAT(lines(tenPointText("one two", 3), 18), ElementsAre("one", "two"));
    EXPECT_THAT(lines(tenPointText("one two", 2), 18), ElementsAre("one", "two"));
}

TEST(TextLayout, aParagraphLeftOutIsToldByAnEllipsis)
{
    EXPECT_THAT(lines(tenPointText("one\ntwo", 1), 100), ElementsAre("one…"));
    EXPECT_THAT(lines(tenPointText("one\ntwo\nthree", 2), 100), ElementsAre("one", "two…"));
    EXPECT_THAT(lines(tenPointText("one\n", 1), 100), ElementsAre("one"));
    for (const char* const lineBreak : {"\r", "\v", "\f", "\u0085", "\u2028", "\u2029"}) {
        const std::string text = std::string{"one"} + lineBreak + "two";
        EXPECT_THAT(lines(tenPointText(text), infinity), ElementsAre("one", "two"));
        EXPECT_THAT(lines(tenPointText(text, 1), 100), ElementsAre("one…"));
        EXPECT_THAT(lines(tenPointText(text, 1, 0.5), 100), ElementsAre("one…"));
    }
    EXPECT_THAT(lines(tenPointText("é…‧Â"), infinity), ElementsAre("é…‧Â"));
}

TEST(TextLayout, severalLinesShrinkUntilAllFits)
{
    const TextBlock block = laidOut(tenPointText("one two three four", 2, 0.5), 48);
    EXPECT_THAT(block.lines.size(), 2U);
    EXPECT_EQ(block.lines.at(1).string, "three four");
    EXPECT_THAT(block.face.size, DoubleNear(8, 0.05));
}

TEST(TextLayout, severalLinesAreAtMostATwentyFifthOfAPointSmallerThanTheyMust)
{
    for (double width = 31; width < 60; width += 0.7) {
        const double needed = width / 6; // By "three four", which has ten characters.
        const double size = laidOut(tenPointText("one two three four", 2, 0.5), width).face.size;
        EXPECT_GT(size, needed - 0.04) << width;
        EXPECT_LT(size, needed + 0.002) << width; // The layout's tolerance.
    }
}

TEST(TextLayout, aLimitBelowOneCountsAsOne)
{
    EXPECT_THAT(lines(tenPointText("one two", 0), 18), ElementsAre("on…"));
    EXPECT_THAT(lines(tenPointText("one two", -3), 18), ElementsAre("on…"));
}

TEST(TextLayout, aVeryLongTextCostsLittleMoreThanTheLinesThatShow)
{
    std::string string;
    for (int word = 0; word < 20'000; ++word)
        string += "word ";
    const test::EvenMeasurer measurer;
    EXPECT_EQ(layoutText(tenPointText(string, 2), 60, measurer).lines.size(), 2U);
    EXPECT_LT(measurer.questions, 100);
}

} // namespace skyvane
