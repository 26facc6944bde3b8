#include "companion/atlas/atlas.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <string>

namespace skyvane {

namespace {

bool isOnGlobe(const Coordinate& coordinate)
{
    return std::abs(coordinate.latitude) <= 90 && std::abs(coordinate.longitude) <= 180;
}

void expectWholeLines(const Atlas::Lines& lines, std::size_t leastPieces)
{
    EXPECT_GT(lines.pieces.size(), leastPieces);
    std::size_t points = 0;
    for (const Atlas::Lines::Piece& piece : lines.pieces) {
        EXPECT_EQ(piece.first, points);
        EXPECT_GE(piece.count, 2U);
        points += piece.count;
        for (const auto& [latitude, longitude] : lines.of(piece)) {
            ASSERT_LE(piece.southWest.latitude, latitude);
            ASSERT_GE(piece.northEast.latitude, latitude);
            ASSERT_LE(piece.southWest.longitude, longitude);
            ASSERT_GE(piece.northEast.longitude, longitude);
        }
        ASSERT_GE(piece.southWest.latitude, -90);
        ASSERT_LE(piece.northEast.latitude, 90);
        ASSERT_GE(piece.southWest.longitude, -180.01);
        ASSERT_LE(piece.northEast.longitude, 180.01);
    }
    EXPECT_EQ(points, lines.points.size());
}

/// Whether a line has a point within some kilometres of there.
bool passes(const Atlas::Lines& lines, double latitude, double longitude)
{
    constexpr double within = 0.05;
    return std::ranges::any_of(lines.points, [&](const Atlas::LinePoint& point) {
        return std::abs(point.latitude - latitude) < within && std::abs(point.longitude - longitude) < within;
    });
}

} // namespace

TEST(Atlas, knowsCitiesTheLargestFirst)
{
    const auto cities = Atlas::cities();
    EXPECT_GT(cities.size(), 20000U);
    EXPECT_TRUE(std::ranges::is_sorted(cities, std::greater{}, &Atlas::City::thousands));
    for (const Atlas::City& city : cities) {
        ASSERT_FALSE(city.name.empty());
        ASSERT_EQ(city.countryCode.size(), 2U) << city.name;
        ASSERT_TRUE(isOnGlobe(city.coordinate)) << city.name;
        ASSERT_GE(city.thousands, 15) << city.name;
    }
    const auto munich = std::ranges::find(cities, "Munich", &Atlas::City::name);
    ASSERT_NE(munich, cities.end());
    EXPECT_EQ(munich->countryCode, "DE");
    EXPECT_NEAR(munich->coordinate.latitude, 48.137, 0.01);
    EXPECT_NEAR(munich->coordinate.longitude, 11.575, 0.01);
}

TEST(Atlas, knowsAirportsByTheirCodesTheNewOnesToo)
{
    const auto airports = Atlas::airports();
    EXPECT_GT(airports.size(), 4000U);
    std::set<std::string_view> codes;
    for (const Atlas::Airport& airport : airports) {
        ASSERT_TRUE(isOnGlobe(airport.coordinate)) << airport.name;
        ASSERT_FALSE(airport.code().empty()) << airport.name;
        const bool isNew = airport.icao.empty() || codes.insert(airport.icao).second;
        ASSERT_TRUE(isNew) << airport.name;
    }
    const auto named = [&](std::string_view iata) {
        const auto found = std::ranges::find(airports, iata, &Atlas::Airport::iata);
        return found != airports.end() ? std::string{found->icao} : "";
    };
    EXPECT_EQ(named("LHR"), "EGLL");
    EXPECT_EQ(named("BER"), "EDDB");
    EXPECT_EQ(named("IST"), "LTFM");
    EXPECT_EQ(named("JFK"), "KJFK");
}

TEST(Atlas, knowsCoastAndBorders)
{
    const Atlas::Earth earth = Atlas::earth();
    expectWholeLines(earth.coast, 2000);
    expectWholeLines(earth.borders, 500);
    EXPECT_TRUE(passes(earth.coast, 51.12, 1.33)) << "Dover";
    EXPECT_TRUE(passes(earth.coast, -33.85, 151.27)) << "Sydney";
    EXPECT_FALSE(passes(earth.coast, 48.137, 11.575)) << "Munich";
    EXPECT_TRUE(passes(earth.borders, 47.58, 7.6)) << "Basel";
    EXPECT_FALSE(passes(earth.borders, 51.12, 1.33)) << "Dover";
}

} // namespace skyvane
