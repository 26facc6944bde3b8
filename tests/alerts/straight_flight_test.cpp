#include "alerts/straight_flight.h"

#include <gtest/gtest.h>

namespace skyvane {

namespace {

Aircraft airliner()
{
    return {
        .hex = "4ca853",
        .typeCode = "B738",
        .altBaro = Altitude::feet(30'000),
        .groundSpeed = 440,
        .category = "A3",
        .seenPos = 1,
    };
}

} // namespace

TEST(StraightFlight, isExpectedOfAnAirlinerOnItsWay)
{
    EXPECT_TRUE(fliesStraight(airliner(), std::nullopt));
    EXPECT_TRUE(fliesStraight(airliner(), 0.06));
    EXPECT_TRUE(fliesStraight(airliner(), -0.24));
}

TEST(StraightFlight, isNotExpectedOfOneThatTurns)
{
    for (const double rate : {0.25, 3.0, -3.0, 1e300})
        EXPECT_FALSE(fliesStraight(airliner(), rate)) << rate;
}

TEST(StraightFlight, isNotExpectedOfAStalePosition)
{
    Aircraft aircraft = airliner();
    aircraft.seenPos = 29.9;
    EXPECT_TRUE(fliesStraight(aircraft, std::nullopt));
    aircraft.seenPos = 30;
    EXPECT_FALSE(fliesStraight(aircraft, std::nullopt));
    aircraft.seenPos.reset();
    EXPECT_TRUE(fliesStraight(aircraft, std::nullopt));
}

TEST(StraightFlight, isNotExpectedOfWhatTaxisOrHovers)
{
    Aircraft aircraft = airliner();
    aircraft.groundSpeed = 69.9;
    EXPECT_FALSE(fliesStraight(aircraft, std::nullopt));
    aircraft.groundSpeed.reset();
    EXPECT_FALSE(fliesStraight(aircraft, 0.0));
    aircraft = airliner();
    aircraft.altBaro = Altitude::ground(); // On the runway.
    aircraft.groundSpeed = 140;
    EXPECT_FALSE(fliesStraight(aircraft, 0.0));
}

TEST(StraightFlight, isExpectedOfThoseThatCircleByTradeOnlyWhenTheyAreKnownNotTo)
{
    for (const char* category : {"A7", "B1", "B2", "B3", "B4", "B6", "B7"}) {
        Aircraft aircraft = airliner();
        aircraft.category = category;
        EXPECT_FALSE(fliesStraight(aircraft, std::nullopt)) << category;
        EXPECT_TRUE(fliesStraight(aircraft, 0.1)) << category;
    }
    Aircraft helicopter = airliner();
    helicopter.typeCode = "ec35";
    EXPECT_FALSE(fliesStraight(helicopter, std::nullopt));
}

} // namespace skyvane
