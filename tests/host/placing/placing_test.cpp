#include "host/placing/placing.h"

#include <gtest/gtest.h>

namespace skyvane {

namespace {

const ScreenArea left{.name = "DP-1", .area = {0, 30, 1920, 1050}};
const ScreenArea right{.name = "HDMI-1", .area = {1920, 0, 1280, 1024}};
const std::vector<ScreenArea> both{left, right};
constexpr QSize small{170, 170};

} // namespace

TEST(Placing, aWidgetIsRememberedByItsNearestCorner)
{
    EXPECT_EQ(Placing::placement({QPoint{24, 54}, small}, both),
        (Placement{
            .screen = "DP-1", .corner = ScreenCorner::topLeft, .inset = {24, 24}, .area = left.area.size()}));
    EXPECT_EQ(Placing::placement({QPoint{1920 - 170 - 16, 40}, small}, both),
        (Placement{.screen = "DP-1",
            .corner = ScreenCorner::topRight,
            .inset = {16, 10},
            .area = left.area.size()}));
    EXPECT_EQ(Placing::placement({QPoint{1928, 1024 - 170 - 8}, small}, both),
        (Placement{.screen = "HDMI-1",
            .corner = ScreenCorner::bottomLeft,
            .inset = {8, 8},
            .area = right.area.size()}));
    EXPECT_EQ(Placing::placement({QPoint{3200 - 170, 1024 - 170}, small}, both),
        (Placement{.screen = "HDMI-1",
            .corner = ScreenCorner::bottomRight,
            .inset = {0, 0},
            .area = right.area.size()}));
    EXPECT_EQ(Placing::placement({QPoint{}, small}, {}), std::nullopt);
}

TEST(Placing, whatIsRememberedIsWhereItStood)
{
    for (const QPoint place : {QPoint{24, 54}, QPoint{1700, 800}, QPoint{2000, 100}, QPoint{2900, 700}}) {
        const QRect frame{place, small};
        EXPECT_EQ(Placing::frame(Placing::placement(frame, both).value(), small, both), frame);
    }
}

TEST(Placing, theCornerCountsWhenTheScreenHasChangedItsSize)
{
    const Placement placement{.screen = "DP-1", .corner = ScreenCorner::bottomRight, .inset = {8, 16}};
    EXPECT_EQ(Placing::frame(placement, small, {{.name = "DP-1", .area = {0, 0, 1000, 800}}}),
        QRect(1000 - 170 - 8, 800 - 170 - 16, 170, 170));
}

TEST(Placing, aScreenThatIsAwayIsStoodInForByTheFirst)
{
    const Placement placement{.screen = "HDMI-1", .corner = ScreenCorner::topLeft, .inset = {1100, 900}};
    EXPECT_EQ(Placing::frame(placement, small, {left}), QRect(1100, 910, 170, 170));
    EXPECT_EQ(Placing::frame(placement, small, both), QRect(1920 + 1100, 1024 - 170, 170, 170));
}

TEST(Placing, nothingIsEverOffItsScreen)
{
    for (const QPoint inset : {QPoint{-500, -500}, QPoint{5000, 5000}}) {
        const Placement placement{.screen = "DP-1", .corner = ScreenCorner::topLeft, .inset = inset};
        EXPECT_TRUE(left.area.contains(Placing::frame(placement, small, both)));
    }
    const Placement placement{.screen = "tiny", .corner = ScreenCorner::topRight, .inset = {8, 8}};
    EXPECT_EQ(Placing::frame(placement, small, {{.name = "tiny", .area = {10, 10, 100, 100}}}).topLeft(),
        QPoint(10, 10));
}

TEST(Placing, aWidgetSnapsToTheGridOfItsScreen)
{
    EXPECT_EQ(Placing::snapped({QPoint{101, 57}, small}, left.area, {}).topLeft(), QPoint(104, 54));
    EXPECT_EQ(Placing::snapped({QPoint{-90, 5000}, small}, left.area, {}).topLeft(), QPoint(0, 910));
}

TEST(Placing, aNeighboursEdgeComesBeforeTheGrid)
{
    const QRect neighbour{100, 200, 170, 170};
    EXPECT_EQ(
        Placing::snapped({QPoint{275, 203}, small}, left.area, {neighbour}).topLeft(), QPoint(278, 200));
    EXPECT_EQ(
        Placing::snapped({QPoint{103, 374}, small}, left.area, {neighbour}).topLeft(), QPoint(100, 378));
    EXPECT_EQ(Placing::snapped({QPoint{105, 700}, small}, left.area, {neighbour}).topLeft(), QPoint(104, 702))
        << "one that is far away is no neighbour";
}

TEST(Placing, aNewWidgetStandsFreeAtTheRightEdge)
{
    std::vector<QRect> taken;
    for (int count = 0; count < 6; ++count) {
        const QRect frame = Placing::freeFrame({364, 382}, left.area, taken);
        EXPECT_TRUE(left.area.contains(frame));
        for (const QRect& other : taken)
            EXPECT_FALSE(frame.intersects(other));
        taken.push_back(frame);
    }
    EXPECT_EQ(taken[0].topLeft(), QPoint(1920 - 24 - 364, 54));
    EXPECT_EQ(Placing::freeFrame(small, {0, 0, 200, 200}, {{0, 0, 200, 200}}), QRect(6, 24, 170, 170));
}

TEST(Placing, aScreenIsFoundAgainInAnotherSocket)
{
    const ScreenArea moved{.name = "DP-2", .area = {0, 0, 1600, 900}, .identity = "Maker Model 17"};
    const ScreenArea other{.name = "DP-1", .area = {1600, 0, 1280, 1024}, .identity = "Maker Model 18"};
    const Placement placement{
        .screen = "DP-1", .corner = ScreenCorner::topLeft, .inset = {8, 8}, .identity = "Maker Model 17"};
    EXPECT_EQ(Placing::frame(placement, small, {moved, other}).topLeft(), QPoint(8, 8));
    EXPECT_EQ(Placing::frame(placement, small, {other, moved}).topLeft(), QPoint(8, 8));
    EXPECT_EQ(Placing::frame(placement, small, {left, other}).topLeft(), QPoint(8, 38)) << "by its name";
    EXPECT_EQ(Placing::placement({QPoint{8, 8}, small}, {moved, other}),
        (Placement{.screen = "DP-2",
            .corner = ScreenCorner::topLeft,
            .inset = {8, 8},
            .identity = "Maker Model 17",
            .area = moved.area.size()}));
}

TEST(Placing, ofTwoEqualScreensTheNameTellsWhich)
{
    const ScreenArea one{.name = "DP-1", .area = {0, 0, 1600, 900}, .identity = "Maker Model"};
    const ScreenArea two{.name = "DP-2", .area = {1600, 0, 1600, 900}, .identity = "Maker Model"};
    const Placement placement{
        .screen = "DP-2", .corner = ScreenCorner::topLeft, .inset = {8, 8}, .identity = "Maker Model"};
    EXPECT_EQ(Placing::frame(placement, small, {one, two}).topLeft(), QPoint(1608, 8));
}

TEST(Placing, whatHasNoPlaceOfItsOwnNowCoversNothing)
{
    const auto at = [](const char* screen, const QPoint& inset) {
        return Placing::Remembered{
            .placement = {.screen = screen, .corner = ScreenCorner::topRight, .inset = inset}, .size = small};
    };
    const std::vector<Placing::Remembered> widgets{
        at("HDMI-1", {24, 24}), at("DP-1", {24, 24}), at("HDMI-1", {24, 24}), at("DP-1", {1800, 1000})};
    const auto frames = Placing::frames(widgets, {left});
    ASSERT_EQ(frames.size(), 4U);
    EXPECT_EQ(frames[1], Placing::frame(widgets[1].placement, small, {left}));
    for (std::size_t one = 0; one < frames.size(); ++one) {
        EXPECT_TRUE(left.area.contains(frames[one]));
        for (std::size_t other = 0; other < one; ++other)
            EXPECT_FALSE(frames[one].intersects(frames[other])) << one << " and " << other;
    }
}

TEST(Placing, whatTheUserPutOnTopOfEachOtherStaysSo)
{
    const Placing::Remembered widget{
        .placement = {.screen = "DP-1", .corner = ScreenCorner::topLeft, .inset = {8, 8}}, .size = small};
    const auto frames = Placing::frames({widget, widget}, {left});
    EXPECT_EQ(frames[0], frames[1]);
}

/// One down the right edge, counted from its top, and a second from its bottom.
TEST(Placing, onASmallerScreenWidgetsOfTheTopAndTheBottomDoNotMeet)
{
    const ScreenArea large{.name = "DP-1", .area = {0, 0, 1600, 1000}};
    const ScreenArea reduced{.name = "DP-1", .area = {0, 0, 1280, 800}};
    const std::vector<QRect> before{{1406, 24, 170, 170}, {1212, 202, 364, 170}, {1212, 560, 364, 382}};
    std::vector<Placing::Remembered> widgets;
    widgets.reserve(before.size());
    for (const QRect& frame : before)
        widgets.push_back({.placement = Placing::placement(frame, {large}).value(), .size = frame.size()});
    const auto frames = Placing::frames(widgets, {reduced});
    EXPECT_EQ(frames[0], QRect(1086, 24, 170, 170));
    EXPECT_EQ(frames[1], QRect(892, 202, 364, 170));
    EXPECT_TRUE(reduced.area.contains(frames[2]));
    EXPECT_FALSE(frames[2].intersects(frames[0]));
    EXPECT_FALSE(frames[2].intersects(frames[1]));
    EXPECT_EQ(Placing::frames(widgets, {large}), before);
}

TEST(Placing, whatTheUserPutOnTopOfEachOtherStaysSoOnASmallerScreen)
{
    const ScreenArea reduced{.name = "DP-1", .area = {0, 0, 1280, 800}};
    const auto put = [](const QRect& frame) {
        return Placing::Remembered{
            .placement = Placing::placement(frame, {left}).value(), .size = frame.size()};
    };
    const auto frames = Placing::frames({put({8, 38, 170, 170}), put({96, 38, 170, 170})}, {reduced});
    EXPECT_EQ(frames, (std::vector<QRect>{{8, 8, 170, 170}, {96, 8, 170, 170}}));
}

TEST(Placing, aFrameIsMovedInsideByAsLittleAsPossible)
{
    const QRect area{100, 100, 500, 400};
    EXPECT_EQ(Placing::inside({200, 200, 50, 50}, area), QRect(200, 200, 50, 50));
    EXPECT_EQ(Placing::inside({590, 90, 50, 50}, area), QRect(550, 100, 50, 50));
    EXPECT_EQ(Placing::inside({300, 300, 600, 50}, area), QRect(100, 300, 600, 50));
}

} // namespace skyvane
