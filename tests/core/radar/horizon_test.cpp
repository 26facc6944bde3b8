#include "core/radar/horizon.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(Horizon, theGeometricHeightGoesBeforeTheBarometricOne)
{
    EXPECT_EQ(Horizon::height({.hex = "a", .altBaro = Altitude::feet(1'000), .altGeom = 1'200}), 1'200);
    EXPECT_EQ(Horizon::height({.hex = "a", .altBaro = Altitude::feet(1'000)}), 1'000);
    EXPECT_EQ(Horizon::height({.hex = "a", .altGeom = -50}), -50);
    EXPECT_EQ(Horizon::height({.hex = "a"}), std::nullopt);
}

TEST(Horizon, onTheGroundThereIsNoHeight)
{
    EXPECT_EQ(Horizon::height({.hex = "a", .altBaro = Altitude::ground(), .altGeom = 300}), std::nullopt);
}

TEST(Horizon, anElevationAllowsForTheRoundEarth)
{
    EXPECT_DOUBLE_EQ(Horizon::elevation(0, 10'000), 90);
    EXPECT_NEAR(Horizon::elevation(1, 6'076), 45, 0.1);
    EXPECT_NEAR(Horizon::elevation(10, 35'000), 29.8, 0.2);
    EXPECT_NEAR(Horizon::elevation(100, 35'000), 2.46, 0.05);
    EXPECT_NEAR(Horizon::elevation(100, 0), -100.0 / 120, 0.001); // Half the angle at the centre.
    EXPECT_LT(Horizon::elevation(250, 3'000), 0);
}

} // namespace
} // namespace skyvane
