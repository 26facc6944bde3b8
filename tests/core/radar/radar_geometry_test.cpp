#include "core/radar/radar_geometry.h"

#include <gtest/gtest.h>

#include <limits>

namespace skyvane {
namespace {

using Polar = RadarGeometry::Polar;

const HomeLocation nullIsland{.latitude = 0, .longitude = 0, .label = ""};
const HomeLocation london{.latitude = 51.5, .longitude = -0.12, .label = ""};

Aircraft at(double latitude, double longitude)
{
    return {.hex = "a", .lat = latitude, .lon = longitude};
}

TEST(RadarGeometry, theFeedsOwnValuesWinOverPositions)
{
    const RadarGeometry geometry{.radiusNM = 25, .home = london};
    const Aircraft aircraft{.hex = "a", .lat = -40.0, .lon = 170.0, .distanceNM = 12.5, .directionDeg = 90.0};
    EXPECT_EQ(geometry.polar(aircraft), (Polar{.fraction = 0.5, .bearingDeg = 90}));
    EXPECT_EQ((RadarGeometry{.radiusNM = 25}).polar(aircraft), (Polar{.fraction = 0.5, .bearingDeg = 90}));
}

TEST(RadarGeometry, whatLiesBeyondTheRadiusIsPinnedToTheOuterRing)
{
    const Aircraft far{.hex = "a", .distanceNM = 40.0, .directionDeg = 200.0};
    EXPECT_EQ((RadarGeometry{.radiusNM = 25}).polar(far), (Polar{.fraction = 1, .bearingDeg = 200}));
}

TEST(RadarGeometry, aNegativeFeedDistanceIsNotRaised)
{
    const Aircraft odd{.hex = "a", .distanceNM = -5.0, .directionDeg = 0.0};
    EXPECT_EQ((RadarGeometry{.radiusNM = 25}).polar(odd), (Polar{.fraction = -0.2, .bearingDeg = 0}));
}

TEST(RadarGeometry, withoutFeedValuesItNeedsHomeAndPosition)
{
    EXPECT_FALSE((RadarGeometry{.radiusNM = 25}).polar(at(51, 0)));
    EXPECT_FALSE((RadarGeometry{.radiusNM = 25, .home = london}).polar({.hex = "a", .lat = 51.0}));
    EXPECT_FALSE((RadarGeometry{.radiusNM = 25, .home = london}).polar({.hex = "a", .distanceNM = 3.0}));
    EXPECT_TRUE((RadarGeometry{.radiusNM = 25, .home = london}).polar(at(51, 0)));
}

TEST(RadarGeometry, anAircraftExactlyAtHomeIsInTheMiddle)
{
    const auto polar = RadarGeometry{.radiusNM = 25, .home = nullIsland}.polar(at(0, 0));
    EXPECT_EQ(polar, (Polar{.fraction = 0, .bearingDeg = 0}));
}

TEST(RadarGeometry, anAircraftExactlyAtHomeIsInTheMiddleAtEveryLatitude)
{
    for (int hundredths = -9000; hundredths <= 9000; ++hundredths) {
        const double latitude = hundredths / 100.0;
        const HomeLocation home{.latitude = latitude, .longitude = 7.5, .label = ""};
        const auto polar = RadarGeometry{.radiusNM = 25, .home = home}.polar(at(latitude, 7.5));
        ASSERT_NEAR(polar.value().fraction, 0, 1e-4) << latitude; // Rounding may leave some metres.
    }
}

TEST(RadarGeometry, anAircraftAtTheAntipodeIsOnTheOuterRingAtEveryLatitude)
{
    for (int hundredths = -9000; hundredths <= 9000; ++hundredths) {
        const double latitude = hundredths / 100.0;
        const HomeLocation home{.latitude = latitude, .longitude = 0, .label = ""};
        const auto polar = RadarGeometry{.radiusNM = 12'000, .home = home}.polar(at(-latitude, 180));
        ASSERT_NEAR(polar.value().fraction, 0.9, 1e-4) << latitude;
    }
}

TEST(RadarGeometry, aRadiusOfZeroOrLessPlacesNothing)
{
    const Aircraft aircraft{.hex = "a", .distanceNM = 1.0, .directionDeg = 1.0};
    EXPECT_FALSE((RadarGeometry{.radiusNM = 0}).polar(aircraft));
    EXPECT_FALSE((RadarGeometry{.radiusNM = -1}).polar(aircraft));
    EXPECT_FALSE((RadarGeometry{.radiusNM = std::numeric_limits<double>::quiet_NaN()}).polar(aircraft));
}

TEST(RadarGeometry, bearingsOnTheEquatorAreDueEastAndDueWest)
{
    const RadarGeometry geometry{.radiusNM = 250, .home = nullIsland};
    EXPECT_DOUBLE_EQ(geometry.polar(at(0, 1)).value().bearingDeg, 90);
    EXPECT_DOUBLE_EQ(geometry.polar(at(0, -1)).value().bearingDeg, 270);
    EXPECT_NEAR(geometry.polar(at(0, 1)).value().fraction, 60.0 / 250, 1e-4);
    EXPECT_DOUBLE_EQ(geometry.polar(at(-1, 0)).value().bearingDeg, 180);
}

TEST(RadarGeometry, elsewhereBearingsAndDistancesAreThoseOfTheSphere)
{
    struct Flight {
        Aircraft to;
        double distanceNM;
        double bearingDeg;
    };
    // Reckoned with vectors, by cross and dot products.
    for (const auto& [to, distanceNM, bearingDeg] : {
             Flight{at(48.86, 2.35), 184.63, 148.117},
             Flight{at(-33.95, 18.6), 5221.12, 164.538},
             Flight{at(47.45, -122.31), 4162.40, 322.303},
         }) {
        const auto polar = RadarGeometry{.radiusNM = 10'000, .home = london}.polar(to).value();
        EXPECT_NEAR(polar.fraction * 10'000, distanceNM, 0.01);
        EXPECT_NEAR(polar.bearingDeg, bearingDeg, 0.001);
    }
}

TEST(RadarGeometry, aMissingBearingIsComputedBesideTheFeedsDistance)
{
    const Aircraft aircraft{.hex = "a", .lat = 0.0, .lon = 1.0, .distanceNM = 5.0};
    const auto polar = RadarGeometry{.radiusNM = 10, .home = nullIsland}.polar(aircraft).value();
    EXPECT_EQ(polar.fraction, 0.5);
    EXPECT_DOUBLE_EQ(polar.bearingDeg, 90);
}

TEST(RadarGeometry, aMissingDistanceIsComputedBesideTheFeedsBearing)
{
    const Aircraft aircraft{.hex = "a", .lat = 0.0, .lon = 1.0, .directionDeg = 77.0};
    const auto polar = RadarGeometry{.radiusNM = 100, .home = nullIsland}.polar(aircraft).value();
    EXPECT_NEAR(polar.fraction, 0.6, 1e-4);
    EXPECT_EQ(polar.bearingDeg, 77);
}

TEST(RadarGeometry, acrossTheDateLineTheShortWayCounts)
{
    const HomeLocation fiji{.latitude = 0, .longitude = 179.5, .label = ""};
    const auto polar = RadarGeometry{.radiusNM = 100, .home = fiji}.polar(at(0, -179.5)).value();
    EXPECT_NEAR(polar.fraction, 0.6, 1e-4);
    EXPECT_NEAR(polar.bearingDeg, 90, 1e-9);
}

} // namespace
} // namespace skyvane
