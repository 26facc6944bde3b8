#include "paint/font_measurer.h"

#include "tests/paint/picture.h"

#include <gmock/gmock.h>

namespace skyvane {

namespace {

using testing::DoubleNear;

constexpr FontFace plain{.size = 10};
constexpr FontFace bold{.size = 10, .weight = FontWeight::bold};
constexpr FontFace fixed{.size = 10, .design = FontDesign::monospaced};

QRect inkOf(const FontMeasurer& fonts, std::string string, const FontFace& face, double scale = 1)
{
    const TextLine line{
        .origin = {20, 40},
        .width = fonts.width(string, face, 0),
        .string = string,
        .face = face,
        .tracking = 0,
        .color = test::white,
    };
    return test::ink(test::picture({300, 60}, {line}, scale));
}

} // namespace

TEST(FontMeasurer, fixedWidthIsTrulyFixed)
{
    const FontMeasurer fonts;
    for (const FontWeight weight : {FontWeight::regular, FontWeight::semibold, FontWeight::bold}) {
        const FontFace face{.size = 9, .weight = weight, .design = FontDesign::monospaced};
        EXPECT_THAT(fonts.width("iiiii", face, 0), DoubleNear(fonts.width("WWWWW", face, 0), 0.01));
        EXPECT_THAT(fonts.width("1 .,5", face, 0), DoubleNear(fonts.width("00000", face, 0), 0.01));
    }
}

TEST(FontMeasurer, theInterfaceFamilyIsProportional)
{
    const FontMeasurer fonts;
    EXPECT_LT(fonts.width("iiiii", plain, 0), fonts.width("WWWWW", plain, 0) / 2);
}

TEST(FontMeasurer, boldIsAnotherFace)
{
    const FontMeasurer fonts;
    EXPECT_GT(fonts.width("Skyvane", bold, 0), fonts.width("Skyvane", plain, 0) + 1);
}

TEST(FontMeasurer, widthsAreProportionalToTheSize)
{
    const FontMeasurer fonts;
    for (const FontDesign design : {FontDesign::standard, FontDesign::monospaced}) {
        const double once = fonts.width("12,500 ft", {.size = 7.3, .design = design}, 0);
        EXPECT_THAT(fonts.width("12,500 ft", {.size = 14.6, .design = design}, 0), DoubleNear(2 * once, 0.1));
        EXPECT_THAT(fonts.width("12,500 ft", {.size = 73, .design = design}, 0), DoubleNear(10 * once, 0.5));
    }
}

TEST(FontMeasurer, aSizeIsInPointsWhateverTheScreensResolution)
{
    const FontMeasurer fonts;
    const LineMetrics metrics = fonts.lineMetrics({.size = 100});
    EXPECT_GT(metrics.height(), 100);
    EXPECT_LT(metrics.height(), 150);
    EXPECT_GT(metrics.ascent, metrics.descent);
    const LineMetrics small = fonts.lineMetrics({.size = 12.5});
    EXPECT_THAT(small.ascent * 8, DoubleNear(metrics.ascent, 1));
}

TEST(FontMeasurer, trackingFollowsEveryCharacter)
{
    const FontMeasurer fonts;
    EXPECT_THAT(fonts.width("RADAR", fixed, 2) - fonts.width("RADAR", fixed, 0), DoubleNear(10, 0.01));
}

TEST(FontMeasurer, trackingTearsNoJoinedLettersApart)
{
    const FontMeasurer fonts;
    EXPECT_THAT(fonts.width("الأقرب", plain, 2) - fonts.width("الأقرب", plain, 0), DoubleNear(0, 0.01));
}

TEST(FontMeasurer, aTextFromRightToLeftFillsItsWidthFromTheLeft)
{
    const FontMeasurer fonts;
    const QRect ink = inkOf(fonts, "الأقرب", plain, 4);
    EXPECT_NEAR(ink.left(), 20 * 4, 8);
    EXPECT_NEAR(ink.right(), (20 + fonts.width("الأقرب", plain, 0)) * 4, 8);
}

TEST(FontMeasurer, anEmptyTextHasNoWidth)
{
    const FontMeasurer fonts;
    EXPECT_EQ(fonts.width("", plain, 2), 0);
}

TEST(FontMeasurer, whatFollowsALineBreakIsMeasuredAndPaintedToo)
{
    const FontMeasurer fonts;
    for (const char* const lineBreak : {"\n", "\r", "\v", "\f", "\u0085", "\u2028", "\u2029"}) {
        const std::string text = std::string{"AB"} + lineBreak + "CD";
        EXPECT_EQ(fonts.width(text, plain, 0), fonts.width("AB CD", plain, 0));
        EXPECT_EQ(inkOf(fonts, text, plain), inkOf(fonts, "AB CD", plain));
    }
}

TEST(FontMeasurer, trailingBlanksCount)
{
    const FontMeasurer fonts;
    EXPECT_THAT(fonts.width("A  ", fixed, 0), DoubleNear(3 * fonts.width("A", fixed, 0), 0.01));
}

TEST(FontMeasurer, theInkFillsTheMeasuredWidth)
{
    const FontMeasurer fonts;
    for (const FontFace& face : {plain, bold, fixed, FontFace{.size = 15.5}}) {
        const std::string string = "HH nearest 12,500 HH";
        const QRect ink = inkOf(fonts, string, face);
        const double width = fonts.width(string, face, 0);
        EXPECT_GE(ink.left(), 19);
        EXPECT_LE(ink.left(), 22);
        EXPECT_THAT(ink.right() + 1.0, DoubleNear(20 + width, 2.5)) << face.size;
    }
}

TEST(FontMeasurer, theInkStandsOnTheBaseline)
{
    const FontMeasurer fonts;
    EXPECT_NEAR(inkOf(fonts, "HEH", {.size = 20}).bottom() + 1, 40, 1);
    EXPECT_NEAR(inkOf(fonts, "HEH", {.size = 20}, 3).bottom() + 1, 120, 1);
}

TEST(FontMeasurer, theInkOfEveryScaleFillsTheSameWidth)
{
    const FontMeasurer fonts;
    const int once = inkOf(fonts, "nearest aircraft", plain).width();
    EXPECT_NEAR(inkOf(fonts, "nearest aircraft", plain, 2).width(), 2 * once, 3);
    EXPECT_NEAR(inkOf(fonts, "nearest aircraft", plain, 3.5).width(), 3.5 * once, 5);
}

TEST(FontMeasurer, hintingMovesNoGlyph)
{
    const FontMeasurer fonts;
    for (const FontFace& face : {plain, bold, fixed}) {
        const auto plainRuns = fonts.glyphs("Nearest 12,500 ft ✈", face, 0.5);
        const auto hintedRuns = fonts.glyphs("Nearest 12,500 ft ✈", face, 0.5, Hinting::usual);
        ASSERT_EQ(hintedRuns.size(), plainRuns.size());
        for (qsizetype run = 0; run < plainRuns.size(); ++run) {
            EXPECT_EQ(hintedRuns[run].glyphIndexes(), plainRuns[run].glyphIndexes());
            EXPECT_EQ(hintedRuns[run].positions(), plainRuns[run].positions());
        }
    }
}

TEST(FontMeasurer, textOutsideTheFamilyIsStillMeasured)
{
    const FontMeasurer fonts;
    EXPECT_GT(fonts.width("✈ 東京 ש", plain, 0), 10);
    EXPECT_GE(fonts.width("\xff\xfe", plain, 0), 0);
}

TEST(FontMeasurer, moreTextsThanAreRememberedAreMeasuredAsWell)
{
    const FontMeasurer fonts;
    const double first = fonts.width("0", fixed, 0);
    for (int number = 0; number < 2100; ++number)
        fonts.width(std::to_string(number), fixed, 0);
    EXPECT_EQ(fonts.width("0", fixed, 0), first);
    EXPECT_THAT(fonts.width("2099", fixed, 0), DoubleNear(4 * first, 0.01));
}

TEST(FontMeasurer, textLooksTheSameHoweverManySizesWereDrawnBefore)
{
    const FontMeasurer used;
    const auto picture = [](const FontMeasurer& fonts, int size) {
        const TextLine line{
            .origin = {4, 60},
            .width = 0,
            .string = "Sky 12",
            .face = {.size = size / 2.0},
            .tracking = 0,
            .color = test::white,
        };
        return renderImage({.size = {200, 80}, .items = {line}}, test::black, 1, fonts);
    };
    for (int size = 10; size < 90; ++size)
        EXPECT_EQ(picture(used, size), picture(FontMeasurer{}, size)) << size;
    EXPECT_EQ(picture(used, 10), picture(FontMeasurer{}, 10));
    EXPECT_EQ(picture(used, 89), picture(FontMeasurer{}, 89));
}

} // namespace skyvane
