#include "companion/aircraft/where_to_look.h"

#include <gtest/gtest.h>

namespace skyvane {

namespace {

Aircraft aircraft(double distanceNM, double directionDeg, std::optional<Altitude> altitude)
{
    return {.hex = "a", .altBaro = altitude, .distanceNM = distanceNM, .directionDeg = directionDeg};
}

std::string words(const Aircraft& aircraft)
{
    return lookText(aircraft, whereToLook(aircraft, std::nullopt).value());
}

} // namespace

TEST(WhereToLook, theBearingIsInWords)
{
    const struct {
        double bearing;
        const char* words;
    } rows[]{
        {0, "Look north."},
        {22, "Look north."},
        {23, "Look north-east."},
        {90, "Look east."},
        {135, "Look south-east."},
        {180, "Look south."},
        {225, "Look south-west."},
        {270, "Look west."},
        {315, "Look north-west."},
        {359, "Look north."},
    };
    for (const auto& [bearing, expected] : rows)
        EXPECT_EQ(words(aircraft(5, bearing, std::nullopt)), expected) << bearing;
}

TEST(WhereToLook, theElevationAllowsForTheRoundEarth)
{
    const auto elevation = [](double distanceNM, std::int64_t feet) {
        return whereToLook(aircraft(distanceNM, 0, Altitude::feet(feet)), std::nullopt)->elevationDeg.value();
    };
    EXPECT_NEAR(elevation(1, 6076), 45, 0.1);
    EXPECT_NEAR(elevation(10, 35000), 29.8, 0.2);
    EXPECT_NEAR(elevation(100, 35000), 2.46, 0.05);
    EXPECT_LT(elevation(250, 3000), 0);
}

TEST(WhereToLook, theElevationIsInWords)
{
    EXPECT_EQ(
        words(aircraft(10, 45, Altitude::feet(35000))), "Look north-east, about 30° above the horizon.");
    EXPECT_EQ(words(aircraft(0, 45, Altitude::feet(35000))), "Look straight up.");
    EXPECT_EQ(words(aircraft(250, 90, Altitude::feet(3000))), "It is in the east, below the horizon.");
    EXPECT_EQ(words(aircraft(90, 90, Altitude::feet(7600))), "Look east, right at the horizon.");
}

TEST(WhereToLook, onTheGroundThereIsNoElevation)
{
    Aircraft parked = aircraft(3, 90, Altitude::ground());
    parked.altGeom = 200;
    EXPECT_EQ(words(parked), "It is on the ground, in the east.");
}

TEST(WhereToLook, whatTheFeedLacksIsComputedFromBothPositions)
{
    const Aircraft there{.hex = "a", .lat = 51.5, .lon = 0.5};
    const auto where
        = whereToLook(there, HomeLocation{.latitude = 51.5, .longitude = -0.12, .label = "Home"});
    ASSERT_TRUE(where);
    EXPECT_NEAR(where->bearingDeg, 90, 1);
    EXPECT_EQ(whereToLook(there, std::nullopt), std::nullopt);
}

} // namespace skyvane
