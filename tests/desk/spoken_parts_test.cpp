#include "desk/spoken_parts.h"

#include <gmock/gmock.h>

namespace skyvane {

namespace {

TextLine line(const char* string, Point origin)
{
    return {
        .origin = origin,
        .width = 40,
        .string = string,
        .face = {.size = 10},
        .tracking = 0,
        .color = {1, 1, 1},
    };
}

LinkArea link(const char* url, const Rect& frame)
{
    return {.frame = frame, .url = URL::parse(url).value()};
}

std::vector<std::string> texts(const DisplayList& list, TextDirection direction = TextDirection::leftToRight)
{
    std::vector<std::string> texts;
    for (const SpokenPart& part : spokenParts(list, direction))
        texts.push_back(part.text);
    return texts;
}

} // namespace

TEST(SpokenParts, aLinkIsCalledByTheTextsOnIt)
{
    const DisplayList list{
        .size = {170, 170},
        .items = {line("BAW123", {20, 60}), line("12 km", {100, 60})},
        .links = {link("skyvane://aircraft/abc", {16, 40, 138, 30})},
    };
    const SpokenPart expected{.text = "BAW123, 12 km", .frame = {16, 40, 138, 30}, .link = 0};
    EXPECT_THAT(spokenParts(list, TextDirection::leftToRight), testing::ElementsAre(expected));
}

TEST(SpokenParts, aLinkWithoutTextIsCalledByItsUrl)
{
    const DisplayList list{.size = {170, 170}, .links = {link("skyvane://open", {16, 40, 138, 30})}};
    EXPECT_THAT(texts(list), testing::ElementsAre("skyvane://open"));
}

TEST(SpokenParts, textsBesideEveryLinkAreOnePartARow)
{
    const DisplayList list{
        .size = {170, 170},
        .items = {line("12 km", {100, 60.4}), line("QUIET SKY", {20, 30}), line("BAW123", {20, 60})},
    };
    EXPECT_THAT(texts(list), testing::ElementsAre("QUIET SKY", "BAW123, 12 km"));
    const Rect frame = spokenParts(list, TextDirection::leftToRight).back().frame;
    EXPECT_EQ(frame.x, 20);
    EXPECT_EQ(frame.width, 120);
    EXPECT_NEAR(frame.y, 50, 0.5);
}

TEST(SpokenParts, theOrderIsThatOfReading)
{
    const DisplayList list{
        .size = {170, 170},
        .items = {line("below", {20, 150}), line("second", {20, 110}), line("first", {20, 70}),
            line("above", {20, 20})},
        .links = {link("skyvane://aircraft/second", {16, 90, 138, 30}),
            link("skyvane://aircraft/first", {16, 50, 138, 30})},
    };
    EXPECT_THAT(texts(list), testing::ElementsAre("above", "first", "second", "below"));
    EXPECT_EQ(spokenParts(list, TextDirection::leftToRight)[1].link, 1U);
}

TEST(SpokenParts, theOrderIsThatOfReadingFromRightToLeft)
{
    const DisplayList list{
        .size = {170, 170},
        .items = {line("second", {20, 60}), line("first", {100, 60.4}), line("east", {120, 110}),
            line("west", {20, 110})},
        .links = {link("skyvane://aircraft/west", {16, 90, 60, 30}),
            link("skyvane://aircraft/east", {90, 90, 70, 30})},
    };
    EXPECT_THAT(texts(list), testing::ElementsAre("second, first", "west", "east"));
    EXPECT_THAT(
        texts(list, TextDirection::rightToLeft), testing::ElementsAre("first, second", "east", "west"));
}

TEST(SpokenParts, ofLinksAboveEachOtherTheOneOnTopHasTheText)
{
    const DisplayList list{
        .size = {170, 170},
        .items = {line("inner", {30, 60})},
        .links = {link("skyvane://outer", {0, 0, 170, 170}), link("skyvane://inner", {16, 40, 138, 30})},
    };
    EXPECT_THAT(texts(list), testing::ElementsAre("skyvane://outer", "inner"));
}

} // namespace skyvane
