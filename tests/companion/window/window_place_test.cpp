#include "companion/window/window_place.h"

#include <gtest/gtest.h>

namespace skyvane {

namespace {

constexpr QRect netbook{0, 0, 1024, 600};

} // namespace

TEST(WindowPlace, aFirstSizeLeavesRoomForAFrame)
{
    EXPECT_EQ(WindowPlace::fitted(QSize{1120, 720}, netbook), QSize(1008, 552));
    EXPECT_EQ(WindowPlace::fitted(QSize{1120, 720}, QRect{0, 30, 1920, 1050}), QSize(1120, 720));
}

TEST(WindowPlace, aRememberedOneOnTheScreenStays)
{
    const QRect place{100, 40, 924, 560};
    EXPECT_EQ(WindowPlace::fitted(place, netbook), place);
}

TEST(WindowPlace, aRememberedOneBeyondTheScreenIsMovedOntoIt)
{
    EXPECT_EQ(WindowPlace::fitted(QRect{900, 500, 700, 500}, netbook), QRect(316, 92, 700, 500));
    EXPECT_EQ(WindowPlace::fitted(QRect{-300, -300, 700, 500}, netbook), QRect(8, 40, 700, 500));
    EXPECT_EQ(
        WindowPlace::fitted(QRect{0, 0, 1600, 400}, QRect{1280, 0, 1024, 600}), QRect(1288, 40, 1008, 400));
}

TEST(WindowPlace, aRememberedOneOfALargerScreenIsShrunk)
{
    EXPECT_EQ(WindowPlace::fitted(QRect{200, 100, 1600, 1000}, netbook), QRect(8, 40, 1008, 552));
}

} // namespace skyvane
