#include "core/enrichment/flight_route.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

const FlightRoute route{
    .originCode = "SFO",
    .originCity = "San Francisco",
    .destinationCode = "JFK",
    .destinationCity = "New York",
};

TEST(FlightRoute, summaryNamesBothCodesWithAnArrowBetween)
{
    EXPECT_EQ(route.summary(), "SFO \xe2\x86\x92 JFK");
}

TEST(FlightRoute, citySummaryNamesBothCities)
{
    EXPECT_EQ(route.citySummary(), "San Francisco \xe2\x86\x92 New York");
}

TEST(FlightRoute, citySummaryIsAbsentAsSoonAsEitherCityIs)
{
    EXPECT_EQ((FlightRoute{.originCode = "SFO", .originCity = "a", .destinationCode = "JFK"}.citySummary()),
        std::nullopt);
    EXPECT_EQ(
        (FlightRoute{.originCode = "SFO", .destinationCode = "JFK", .destinationCity = "b"}.citySummary()),
        std::nullopt);
    EXPECT_EQ((FlightRoute{.originCode = "SFO", .destinationCode = "JFK"}.citySummary()), std::nullopt);
}

TEST(FlightRoute, anEmptyCityIsThere)
{
    FlightRoute changed = route;
    changed.originCity = "";
    EXPECT_EQ(changed.citySummary(), " \xe2\x86\x92 New York");
    changed.destinationCity = "";
    EXPECT_EQ(changed.citySummary(), " \xe2\x86\x92 ");
}

TEST(FlightRoute, equalityComparesAllFourFields)
{
    EXPECT_EQ(route, FlightRoute{route});
    for (const auto code : {&FlightRoute::originCode, &FlightRoute::destinationCode}) {
        FlightRoute other = route;
        other.*code = "X";
        EXPECT_NE(other, route);
    }
    for (const auto city : {&FlightRoute::originCity, &FlightRoute::destinationCity}) {
        FlightRoute other = route;
        (other.*city).reset();
        EXPECT_NE(other, route);
    }
}

} // namespace
} // namespace skyvane
