#include "companion/map/map_frame.h"

#include "core/radar/great_circle.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace skyvane {

namespace {

constexpr Coordinate munich{.latitude = 48.137, .longitude = 11.575};

MapFrame around(const Coordinate& middle, double pointsPerNM = 2)
{
    return {middle, pointsPerNM, QRectF{10, 20, 400, 300}};
}

} // namespace

TEST(MapFrame, showsEveryDistanceAndDirectionFromTheMiddleTruly)
{
    for (const Coordinate& middle : {munich, Coordinate{.latitude = -33.9, .longitude = 179.9},
             Coordinate{.latitude = 89.9, .longitude = 0}, Coordinate{.latitude = 0, .longitude = -180}}) {
        const MapFrame frame = around(middle);
        EXPECT_LT(std::hypot(frame.place(middle).x() - 210, frame.place(middle).y() - 170), 0.01);
        for (const Coordinate& there :
            {Coordinate{.latitude = 47, .longitude = 12}, Coordinate{.latitude = -10, .longitude = -170},
                Coordinate{.latitude = 80, .longitude = 100}}) {
            const QPointF away = frame.place(there) - frame.area().center();
            const double distanceNM = GreatCircle::distanceNM(middle, there);
            EXPECT_NEAR(std::hypot(away.x(), away.y()), 2 * distanceNM, 0.01 + distanceNM * 1e-5);
            const double bearing = std::atan2(away.x(), -away.y()) * 180 / std::numbers::pi;
            const double difference
                = std::remainder(bearing - GreatCircle::initialBearing(middle, there), 360);
            EXPECT_NEAR(difference, 0, 0.01);
        }
    }
}

TEST(MapFrame, knowsWhatLiesAtAPlace)
{
    const MapFrame frame = around(munich);
    for (const QPointF& place : {QPointF{210, 170}, QPointF{10, 20}, QPointF{410, 320}, QPointF{300, 100}}) {
        const auto there = frame.coordinate(place);
        ASSERT_TRUE(there);
        const QPointF back = frame.place(*there);
        EXPECT_NEAR(back.x(), place.x(), 0.02);
        EXPECT_NEAR(back.y(), place.y(), 0.02);
    }
    EXPECT_FALSE(around(munich, 0.001).coordinate({10, 20})) << "beyond the far side";
}

TEST(MapFrame, leavesOutWhatCannotBeSeen)
{
    const MapFrame frame = around(munich);
    EXPECT_TRUE(frame.mayShow(Direction::of(munich), 0));
    EXPECT_TRUE(frame.mayShow(Direction::of({.latitude = 48.137, .longitude = 13}), 0));
    EXPECT_FALSE(frame.mayShow(Direction::of({.latitude = 52, .longitude = 11.575}), 0));
    EXPECT_TRUE(frame.mayShow(Direction::of({.latitude = 52, .longitude = 11.575}), 0.1));
    EXPECT_FALSE(around(munich, 0.001).mayShow(Direction::of({.latitude = -48, .longitude = -168}), 0.1));
}

} // namespace skyvane
