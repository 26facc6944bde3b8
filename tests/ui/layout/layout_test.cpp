#include "ui/layout/layout.h"

#include "tests/ui/layout/even_measurer.h"
#include "tests/ui/layout/infinity.h"
#include "ui/tree/build.h"

#include <gmock/gmock.h>

#include <cmath>

namespace skyvane {

namespace {

using testing::ElementsAre;

constexpr Size space{.width = 100, .height = 60};

DisplayList laidOut(const View& view, Size offered = space)
{
    return layout(view, offered, test::EvenMeasurer{});
}

View tenPoint(std::string string)
{
    return text(std::move(string)).font({.size = 10}).lineLimit(1);
}
View glyph(double size = 10)
{
    return symbol("airplane").font({.size = size});
}
constexpr double lineHeight = 1.17; ///< Of a symbol, in sizes of its font.

URL url(const char* string)
{
    return URL::parse(string).value();
}

/// The texts with the places of their top left corners.
struct Placed {
    std::string string;
    Point corner;

    bool operator==(const Placed&) const = default;
    friend void PrintTo(const Placed& placed, std::ostream* out)
    {
        *out << placed.string << " at " << placed.corner.x << "," << placed.corner.y;
    }
};

std::vector<Placed> texts(const DisplayList& list)
{
    std::vector<Placed> found;
    for (const DisplayItem& item : list.items) {
        if (const auto* line = std::get_if<TextLine>(&item))
            found.push_back({line->string, {line->origin.x, line->origin.y - 0.75 * line->face.size}});
    }
    return found;
}

std::vector<Point> symbols(const DisplayList& list)
{
    std::vector<Point> found;
    for (const DisplayItem& item : list.items) {
        if (const auto* pictogram = std::get_if<Pictogram>(&item))
            found.push_back(pictogram->center);
    }
    return found;
}

Ellipse onlyEllipse(const View& view, Size offered)
{
    return std::get<Ellipse>(laidOut(view, offered).items.at(0));
}

View disc(double aspectRatio)
{
    return canvas(aspectRatio,
        {CanvasCircle{.center = {0.5, 0.5}, .diameter = FractionOfWidth{1}, .paint = Color{0, 0, 0}}});
}

} // namespace

TEST(Layout, theRootStandsInTheMiddleOfItsSpace)
{
    const DisplayList list = laidOut(tenPoint("AB"));
    EXPECT_EQ(list.size, space);
    EXPECT_THAT(texts(list), ElementsAre(Placed{"AB", {44, 25}}));
}

TEST(Layout, aStackPutsItsSpacingBetweenItsChildren)
{
    EXPECT_THAT(texts(laidOut(HStack{.spacing = 4}({tenPoint("A"), tenPoint("BC"), tenPoint("D")}))),
        ElementsAre(Placed{"A", {34, 25}}, Placed{"BC", {44, 25}}, Placed{"D", {60, 25}}));
    EXPECT_THAT(texts(laidOut(VStack{.spacing = 4}({tenPoint("A"), tenPoint("BC")}))),
        ElementsAre(Placed{"A", {47, 18}}, Placed{"BC", {44, 32}}));
}

TEST(Layout, aStackAlignsItsChildrenAcrossIt)
{
    const auto row = [](VerticalAlignment align) {
        return texts(laidOut(HStack{.align = align}({tenPoint("A"), glyph(30 / lineHeight)}))).at(0).corner.y;
    };
    EXPECT_DOUBLE_EQ(row(VerticalAlignment::top), 15);
    EXPECT_DOUBLE_EQ(row(VerticalAlignment::center), 25);
    EXPECT_DOUBLE_EQ(row(VerticalAlignment::bottom), 35);

    const auto column = [](HorizontalAlignment align) {
        return texts(laidOut(VStack{.align = align}({tenPoint("A"), glyph(30 / lineHeight)}))).at(0).corner.x;
    };
    EXPECT_DOUBLE_EQ(column(HorizontalAlignment::leading), 35);
    EXPECT_DOUBLE_EQ(column(HorizontalAlignment::center), 47);
    EXPECT_DOUBLE_EQ(column(HorizontalAlignment::trailing), 59);
}

TEST(Layout, theShortTextsOfARowKeepTheirWidthAndTheLongestTruncates)
{
    const View row
        = HStack{.spacing = 5}({tenPoint("Intercontinental"), tenPoint("12 nm"), tenPoint("FL350")});
    EXPECT_THAT(texts(laidOut(row)),
        ElementsAre(Placed{"Inte…", {0, 25}}, Placed{"12 nm", {35, 25}}, Placed{"FL350", {70, 25}}));
}

TEST(Layout, aSpacerPushesItsNeighboursApart)
{
    EXPECT_THAT(texts(laidOut(HStack{}({tenPoint("A"), spacer(), tenPoint("B")}))),
        ElementsAre(Placed{"A", {0, 25}}, Placed{"B", {94, 25}}));
    EXPECT_THAT(texts(laidOut(VStack{}({tenPoint("A"), spacer(), tenPoint("B")}))),
        ElementsAre(Placed{"A", {47, 0}}, Placed{"B", {47, 50}}));
}

TEST(Layout, aSpacerHasNoThickness)
{
    const DisplayList list = laidOut(VStack{}({HStack{}({tenPoint("A"), spacer()}), tenPoint("B")}));
    EXPECT_THAT(texts(list), ElementsAre(Placed{"A", {0, 20}}, Placed{"B", {47, 30}}));
}

TEST(Layout, aSpacerKeepsItsMinimumWhereTextsTruncate)
{
    EXPECT_THAT(texts(laidOut(HStack{}({tenPoint("Intercontinental"), spacer(10), tenPoint("B")}))),
        ElementsAre(Placed{"Intercontinen…", {0, 25}}, Placed{"B", {94, 25}}));
}

TEST(Layout, aFrameGrowsToItsOfferUpToItsMaximum)
{
    const auto label = [](std::optional<double> maxWidth) {
        const View framed = Frame{.maxWidth = maxWidth, .align = Alignment::leading}(tenPoint("ABC"));
        return texts(laidOut(framed)).at(0).corner.x;
    };
    EXPECT_EQ(label(infinity), 0);
    EXPECT_EQ(label(40), 30);
    EXPECT_EQ(label(std::nullopt), 41);
}

TEST(Layout, aFrameOffersItsChildNoMoreThanItsMaximum)
{
    EXPECT_THAT(
        texts(laidOut(Frame{.maxWidth = 24}(tenPoint("Lufthansa")))), ElementsAre(Placed{"Luf…", {38, 25}}));
}

TEST(Layout, aFrameIsNeverSmallerThanItsChild)
{
    const View framed = Frame{.maxHeight = 5, .align = Alignment::top}(tenPoint("A"));
    EXPECT_THAT(texts(laidOut(framed)), ElementsAre(Placed{"A", {47, 25}}));
}

TEST(Layout, aFrameAlignsItsChildInside)
{
    const auto corner = [](Alignment align) {
        const View framed
            = Frame{.maxWidth = infinity, .maxHeight = infinity, .align = align}(tenPoint("AB"));
        return texts(laidOut(framed)).at(0).corner;
    };
    EXPECT_EQ(corner(Alignment::topLeading), (Point{0, 0}));
    EXPECT_EQ(corner(Alignment::center), (Point{44, 25}));
    EXPECT_EQ(corner(Alignment::trailing), (Point{88, 25}));
    EXPECT_EQ(corner(Alignment::bottomTrailing), (Point{88, 50}));
}

TEST(Layout, layersAreAlignedInTheChildsFrameInOrder)
{
    const View view = overlay(Frame{.maxWidth = 40, .maxHeight = 40}(tenPoint("base")),
        {
            layer(Alignment::topLeading, tenPoint("A")),
            layer(Alignment::bottom, tenPoint("B")),
            layer(Alignment::trailing, tenPoint("C")),
        });
    EXPECT_THAT(texts(laidOut(view)),
        ElementsAre(
            Placed{"base", {38, 25}}, Placed{"A", {30, 10}}, Placed{"B", {47, 40}}, Placed{"C", {64, 25}}));
}

TEST(Layout, aLayerNeverChangesTheSize)
{
    const View view
        = HStack{}({overlay(tenPoint("AB"), {layer(Alignment::leading, glyph(40))}), tenPoint("C")});
    EXPECT_THAT(texts(laidOut(view)), ElementsAre(Placed{"AB", {41, 25}}, Placed{"C", {53, 25}}));
}

TEST(Layout, aLayerIsOfferedTheChildsSize)
{
    const View view = overlay(tenPoint("ABCD"), {layer(Alignment::leading, tenPoint("Lufthansa"))});
    EXPECT_EQ(texts(laidOut(view)).at(1), (Placed{"Luf…", {38, 25}}));
}

TEST(Layout, aCanvasIsAsLargeAsFitsAndCentred)
{
    EXPECT_EQ(onlyEllipse(disc(1), {100, 60}).diameter, 60);
    EXPECT_EQ(onlyEllipse(disc(1), {100, 60}).center, (Point{50, 30}));
    EXPECT_EQ(onlyEllipse(disc(1), {40, 60}).diameter, 40);
    EXPECT_EQ(onlyEllipse(disc(2), {100, 60}).diameter, 100);
    EXPECT_EQ(onlyEllipse(disc(0.5), {100, 60}).diameter, 30);
}

TEST(Layout, aCanvasIsAtMostAThousandTimesAsLongOnOneSideAsOnTheOther)
{
    const auto sizeOf = [](double aspectRatio) {
        const DisplayList list = laidOut(link(url("skyvane://open"), canvas(aspectRatio, {})), {100, 60});
        return Size{.width = list.links.at(0).frame.width, .height = list.links.at(0).frame.height};
    };
    EXPECT_EQ(sizeOf(1e-6), (Size{.width = 60.0 / 1000, .height = 60}));
    EXPECT_EQ(sizeOf(1e6), (Size{.width = 100, .height = 100.0 / 1000}));
    EXPECT_EQ(sizeOf(0), (Size{.width = 60, .height = 60}));
    EXPECT_EQ(sizeOf(-2), (Size{.width = 60, .height = 60}));
}

TEST(Layout, aCanvasLeavesARowWhatItDoesNotNeed)
{
    const View row = HStack{.spacing = 10}({disc(1), Frame{.maxWidth = infinity}(tenPoint("list"))});
    const DisplayList list = laidOut(row, {200, 60});
    EXPECT_EQ(std::get<Ellipse>(list.items.at(0)).center, (Point{30, 30}));
    EXPECT_THAT(texts(list), ElementsAre(Placed{"list", {123, 25}}));
}

TEST(Layout, canvasItemsArePlacedInUnitCoordinates)
{
    const Stroke stroke{.color = {1, 0, 0}, .width = 0.5};
    const View view = canvas(2,
        {
            CanvasLine{.from = {0, 0}, .to = {1, 1}, .stroke = stroke},
            CanvasCircle{.center = {0.25, 0.5}, .diameter = Points{5}, .paint = stroke},
            CanvasSymbol{.center = {0.5, 1},
                .name = "house",
                .font = {.size = 7},
                .color = {0, 1, 0},
                .rotation = 30,
                .id = "a1b2c3"},
            UnknownCanvasItem{.type = "comet"},
        });
    EXPECT_THAT(laidOut(view).items,
        ElementsAre(DisplayItem{Segment{.from = {0, 5}, .to = {100, 55}, .stroke = stroke}},
            DisplayItem{Ellipse{.center = {25, 30}, .diameter = 5, .paint = stroke}},
            DisplayItem{Pictogram{.center = {50, 55},
                .side = 7 * lineHeight,
                .name = "house",
                .rotation = 30,
                .color = {0, 1, 0},
                .id = "a1b2c3"}}));
}

TEST(Layout, aSymbolIsASquareByTheSizeOfItsFontWhateverTheFacesLines)
{
    EXPECT_THAT(laidOut(symbol("airplane").font({.size = 12}).rotated(90)).items,
        ElementsAre(DisplayItem{Pictogram{.center = {50, 30},
            .side = 12 * lineHeight,
            .name = "airplane",
            .rotation = 90,
            .color = {0, 0, 0}}}));
}

TEST(Layout, rotationChangesNoLayout)
{
    const auto row = [](double degrees) {
        return texts(
            laidOut(HStack{}({symbol("airplane").font({.size = 12}).rotated(degrees), tenPoint("A")})));
    };
    EXPECT_EQ(row(45), row(0));
}

TEST(Layout, anInnerLinkComesAfterTheOneAroundIt)
{
    const View view = link(url("skyvane://open"),
        VStack{}({link(url("skyvane://aircraft/1"), tenPoint("A")),
            link(url("skyvane://aircraft/2"), tenPoint("BB"))}));
    EXPECT_THAT(laidOut(view).links,
        ElementsAre(LinkArea{.frame = {44, 20, 12, 20}, .url = url("skyvane://open")},
            LinkArea{.frame = {47, 20, 6, 10}, .url = url("skyvane://aircraft/1")},
            LinkArea{.frame = {44, 30, 12, 10}, .url = url("skyvane://aircraft/2")}));
}

TEST(Layout, aSpacerOutsideAStackTakesWhatIsOffered)
{
    const View view = link(url("skyvane://open"), spacer());
    EXPECT_THAT(
        laidOut(view).links, ElementsAre(LinkArea{.frame = {0, 0, 100, 60}, .url = url("skyvane://open")}));
}

TEST(Layout, anUnknownViewTakesNeitherRoomNorSpacing)
{
    const View unknown{.node = UnknownView{.type = "gauge"}};
    EXPECT_EQ(laidOut(HStack{.spacing = 8}({unknown, tenPoint("A"), unknown, tenPoint("B"), unknown})),
        laidOut(HStack{.spacing = 8}({tenPoint("A"), tenPoint("B")})));
    EXPECT_TRUE(laidOut(unknown).items.empty());
    EXPECT_THAT(laidOut(link(url("skyvane://open"), unknown)).links,
        ElementsAre(LinkArea{.frame = {50, 30, 0, 0}, .url = url("skyvane://open")}));
}

TEST(Layout, theLinesOfAWrappedTextAreAlignedInItsOwnWidth)
{
    const auto wrapped = [](HorizontalAlignment align) {
        return texts(laidOut(text("No aircraft in range").font({.size = 10}).align(align), {70, 60}));
    };
    EXPECT_THAT(wrapped(HorizontalAlignment::leading),
        ElementsAre(Placed{"No aircraft", {2, 20}}, Placed{"in range", {2, 30}}));
    EXPECT_THAT(wrapped(HorizontalAlignment::center),
        ElementsAre(Placed{"No aircraft", {2, 20}}, Placed{"in range", {11, 30}}));
    EXPECT_THAT(wrapped(HorizontalAlignment::trailing),
        ElementsAre(Placed{"No aircraft", {2, 20}}, Placed{"in range", {20, 30}}));
}

TEST(Layout, anEmptyTextKeepsItsLine)
{
    const DisplayList list = laidOut(VStack{}({tenPoint("A"), tenPoint(""), tenPoint("B")}));
    EXPECT_THAT(texts(list), ElementsAre(Placed{"A", {47, 15}}, Placed{"B", {47, 35}}));
}

TEST(Layout, extremeNumbersGiveFinitePlaces)
{
    constexpr double huge = 1e308;
    const View view = HStack{.spacing = huge}({
        spacer(huge),
        text("A").font({.size = huge}).tracking(huge),
        canvas(1e-308, {}),
        VStack{.spacing = -huge}({glyph(), spacer(huge), glyph(0)}),
        Frame{.maxWidth = huge, .maxHeight = -huge}(glyph(-huge)),
    });
    for (const Point center : symbols(laidOut(view))) {
        EXPECT_TRUE(std::isfinite(center.x));
        EXPECT_TRUE(std::isfinite(center.y));
    }
}

namespace {

View nest(int depth, View view)
{
    for (int level = 0; level < depth; ++level) {
        const double bound = 300.0 - 4 * level;
        if (level % 2 == 0)
            view = HStack{.spacing = 0.5}({
                Frame{.maxWidth = bound}(std::move(view)),
                text("one two three").font({.size = 2}),
            });
        else
            view = VStack{.spacing = 0.5}({
                Frame{.maxHeight = bound}(std::move(view)),
                text("four five").font({.size = 2}),
            });
    }
    return view;
}

} // namespace

TEST(Layout, deepNestingCostsNoMoreThanItsNodes)
{
    const test::EvenMeasurer measurer;
    const DisplayList list = layout(nest(32, text("deep").font({.size = 2})), {400, 400}, measurer);
    EXPECT_FALSE(list.items.empty());
    EXPECT_LT(measurer.questions, 100'000);
}

TEST(Layout, manyLevelsOfOneChildEachAreLaidOut)
{
    View view = glyph();
    for (int level = 0; level < 64; ++level)
        view = HStack{}({overlay(std::move(view), {})});
    EXPECT_THAT(symbols(laidOut(view)), ElementsAre(Point{50, 30}));
}

} // namespace skyvane
