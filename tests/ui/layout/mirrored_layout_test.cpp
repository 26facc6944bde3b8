#include "tests/ui/layout/even_measurer.h"
#include "tests/ui/layout/infinity.h"
#include "ui/layout/layout.h"
#include "ui/tree/build.h"

#include <gmock/gmock.h>

#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace skyvane {

namespace {

using testing::ElementsAre;
using testing::Pair;

constexpr Size space{.width = 100, .height = 60};

DisplayList mirrored(const View& view, Size offered = space)
{
    return layout(view, offered, test::EvenMeasurer{}, TextDirection::rightToLeft);
}

View tenPoint(std::string string)
{
    return text(std::move(string)).font({.size = 10}).lineLimit(1);
}

URL url(const char* string)
{
    return URL::parse(string).value();
}

/// The texts, each with the place of its left end.
std::vector<std::pair<std::string, double>> texts(const DisplayList& list)
{
    std::vector<std::pair<std::string, double>> found;
    for (const DisplayItem& item : list.items) {
        if (const auto* line = std::get_if<TextLine>(&item))
            found.emplace_back(line->string, line->origin.x);
    }
    return found;
}

} // namespace

TEST(MirroredLayout, aRowBeginsAtTheRight)
{
    EXPECT_THAT(texts(mirrored(HStack{.spacing = 4}({tenPoint("A"), tenPoint("BC"), tenPoint("D")}))),
        ElementsAre(Pair("A", 60), Pair("BC", 44), Pair("D", 34)));
    EXPECT_THAT(texts(mirrored(HStack{}({tenPoint("A"), spacer(), tenPoint("B")}))),
        ElementsAre(Pair("A", 94), Pair("B", 0)));
}

TEST(MirroredLayout, aColumnsLeadingSideIsTheRight)
{
    const auto column = [](HorizontalAlignment align) {
        return texts(mirrored(VStack{.align = align}({tenPoint("A"), tenPoint("12345")})));
    };
    EXPECT_THAT(column(HorizontalAlignment::leading), ElementsAre(Pair("A", 59), Pair("12345", 35)));
    EXPECT_THAT(column(HorizontalAlignment::center), ElementsAre(Pair("A", 47), Pair("12345", 35)));
    EXPECT_THAT(column(HorizontalAlignment::trailing), ElementsAre(Pair("A", 35), Pair("12345", 35)));
}

TEST(MirroredLayout, aFrameAndALayersLeadingSideIsTheRight)
{
    const auto framed = [](Alignment align) {
        return texts(mirrored(Frame{.maxWidth = infinity, .align = align}(tenPoint("AB")))).at(0).second;
    };
    EXPECT_EQ(framed(Alignment::leading), 88);
    EXPECT_EQ(framed(Alignment::center), 44);
    EXPECT_EQ(framed(Alignment::trailing), 0);
    const View layers = overlay(Frame{.maxWidth = 40, .maxHeight = 40}(tenPoint("base")),
        {layer(Alignment::topLeading, tenPoint("A")), layer(Alignment::bottomTrailing, tenPoint("B"))});
    EXPECT_THAT(texts(mirrored(layers)), ElementsAre(Pair("base", 38), Pair("A", 64), Pair("B", 30)));
}

TEST(MirroredLayout, theLinesOfAWrappedTextEndAtTheLeft)
{
    const auto wrapped = [](HorizontalAlignment align) {
        return texts(mirrored(text("No aircraft in range").font({.size = 10}).align(align), {70, 60}));
    };
    EXPECT_THAT(
        wrapped(HorizontalAlignment::leading), ElementsAre(Pair("No aircraft", 2), Pair("in range", 20)));
    EXPECT_THAT(
        wrapped(HorizontalAlignment::center), ElementsAre(Pair("No aircraft", 2), Pair("in range", 11)));
    EXPECT_THAT(
        wrapped(HorizontalAlignment::trailing), ElementsAre(Pair("No aircraft", 2), Pair("in range", 2)));
}

TEST(MirroredLayout, linksStandWhereTheirChildrenDo)
{
    const View row
        = HStack{}({link(url("skyvane://aircraft/1"), tenPoint("A")), spacer(), tenPoint("second")});
    EXPECT_EQ(mirrored(row).links.at(0).frame, (Rect{94, 25, 6, 10}));
}

TEST(MirroredLayout, placesOnACanvasAndHeadingsStay)
{
    const View scope = canvas(1,
        {CanvasSymbol{
             .center = {0.25, 0.5}, .name = "airplane", .font = {.size = 7}, .color = {}, .rotation = 30},
            CanvasLine{.from = {0, 0}, .to = {1, 0.5}, .stroke = {.color = {}, .width = 1}}});
    const DisplayList list = mirrored(
        HStack{}({scope, Frame{.maxWidth = infinity}(symbol("airplane").font({.size = 10}).rotated(70))}),
        {200, 60});
    const auto aircraft = std::get<Pictogram>(list.items.at(0));
    EXPECT_EQ(aircraft.center, (Point{140 + 15, 30})); // The scope itself stands at the right.
    EXPECT_EQ(aircraft.rotation, 30);
    EXPECT_EQ(std::get<Segment>(list.items.at(1)).from, (Point{140, 0}));
    EXPECT_EQ(std::get<Segment>(list.items.at(1)).to, (Point{200, 30}));
    const auto glyph = std::get<Pictogram>(list.items.at(2));
    EXPECT_DOUBLE_EQ(glyph.center.x, 70);
    EXPECT_DOUBLE_EQ(glyph.center.y, 30);
    EXPECT_EQ(glyph.rotation, 70);
}

TEST(MirroredLayout, insideLinksLayersAndStacksIsMirroredToo)
{
    const View row = HStack{.spacing = 4}({tenPoint("A"), tenPoint("BC")});
    const View nested
        = link(url("skyvane://open"), VStack{}({overlay(row, {layer(Alignment::leading, tenPoint("D"))})}));
    EXPECT_THAT(texts(mirrored(nested)), ElementsAre(Pair("A", 55), Pair("BC", 39), Pair("D", 55)));
}

} // namespace skyvane
