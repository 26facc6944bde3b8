#include "core/views/widget_aircraft_row.h"

#include "platform/pinned.h"
#include "tests/core/sample_sky.h"
#include "ui/tree/build.h"

#include <gtest/gtest.h>

#include <string>

namespace skyvane {
namespace {

class WidgetAircraftRowTest : public testing::Test {
    Pinned<Locale> m_locale{test::english()};

protected:
    static constexpr Font glyphFont{.size = 8, .weight = FontWeight::bold};
    static constexpr Font figureFont{.size = 9, .design = FontDesign::monospaced};

    static ViewList childrenOf(const Aircraft& aircraft)
    {
        return std::get<HStack>(WidgetAircraftRow{.aircraft = aircraft}.body().node).children;
    }

    static std::string altitudeOf(const Aircraft& aircraft)
    {
        const ViewList children = childrenOf(aircraft);
        return std::get<Text>(children[children.size() - 1].node).string;
    }
};

TEST_F(WidgetAircraftRowTest, readsGlyphNameGapDistanceAltitude)
{
    const Aircraft aircraft{
        .hex = "a",
        .flight = "ASA512  ",
        .altBaro = Altitude::feet(12500),
        .track = 45.0,
        .dbFlags = 1,
        .distanceNM = 3.2,
    };
    const ScopePalette palette = ScopePalette::fromHex("#ff0000");
    const View expected = HStack{.spacing = 5}({
        symbol("airplane").font(glyphFont).rotated(-45).foreground({1.0, 0.85, 0.3}),
        text("ASA512")
            .font({.size = 10, .weight = FontWeight::bold, .design = FontDesign::monospaced})
            .foreground({1, 0, 0})
            .lineLimit(1),
        spacer(4),
        text("5.9km").font(figureFont).foreground({1, 0, 0, 0.55}),
        text("12,500ft").font(figureFont).foreground({1, 0, 0, 0.55}),
    });
    EXPECT_EQ((WidgetAircraftRow{.aircraft = aircraft, .unit = "km", .palette = palette}.body()), expected);
}

TEST_F(WidgetAircraftRowTest, theUnitIsStatuteMilesByDefault)
{
    const ViewList children = childrenOf({.hex = "a", .distanceNM = 10.0});
    EXPECT_EQ(std::get<Text>(children[3].node).string, "11.5mi");
}

TEST_F(WidgetAircraftRowTest, withoutADistanceThatColumnIsLeftOut)
{
    const ViewList children = childrenOf({.hex = "a"});
    ASSERT_EQ(children.size(), 4U);
    EXPECT_TRUE(std::holds_alternative<Spacer>(children[2].node));
}

TEST_F(WidgetAircraftRowTest, theGlyphPointsRightWithoutATrackAndWhenHeadingEast)
{
    const auto rotationOf
        = [](const Aircraft& aircraft) { return std::get<Symbol>(childrenOf(aircraft)[0].node).rotation; };
    EXPECT_EQ(rotationOf({.hex = "a"}), 0);
    EXPECT_EQ(rotationOf({.hex = "a", .track = 90.0}), 0);
    EXPECT_EQ(rotationOf({.hex = "a", .track = 0.0}), -90);
}

TEST_F(WidgetAircraftRowTest, flightLevelsBeginAt18000Feet)
{
    EXPECT_EQ(altitudeOf({.hex = "a", .altBaro = Altitude::feet(18000)}), "FL180");
    EXPECT_EQ(altitudeOf({.hex = "a", .altBaro = Altitude::feet(18099)}), "FL180");
    EXPECT_EQ(altitudeOf({.hex = "a", .altBaro = Altitude::feet(35000)}), "FL350");
    EXPECT_EQ(altitudeOf({.hex = "a", .altBaro = Altitude::feet(17999)}), "17,999ft");
    EXPECT_EQ(altitudeOf({.hex = "a", .altBaro = Altitude::feet(0)}), "0ft");
    EXPECT_EQ(altitudeOf({.hex = "a", .altBaro = Altitude::feet(-150)}), "-150ft");
}

TEST_F(WidgetAircraftRowTest, withoutABarometricAltitudeTheGeometricOneShows)
{
    EXPECT_EQ(altitudeOf({.hex = "a", .altGeom = 2400}), "2,400ft");
    EXPECT_EQ(altitudeOf({.hex = "a", .altGeom = 41000}), "FL410");
    EXPECT_EQ(altitudeOf({.hex = "a"}), "—");
}

TEST_F(WidgetAircraftRowTest, onTheGroundTheGeometricAltitudeDoesNotShow)
{
    EXPECT_EQ(altitudeOf({.hex = "a", .altBaro = Altitude::ground(), .altGeom = 125}), "GND");
}

} // namespace
} // namespace skyvane
