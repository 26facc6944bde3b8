#include "platform/text/compass.h"

#include <gtest/gtest.h>

namespace skyvane {

TEST(Compass, aDirectionIsTheNearestOfEightPoints)
{
    EXPECT_EQ(compassDirection(0), "north");
    EXPECT_EQ(compassDirection(22), "north");
    EXPECT_EQ(compassDirection(23), "north-east");
    EXPECT_EQ(compassDirection(90), "east");
    EXPECT_EQ(compassDirection(135), "south-east");
    EXPECT_EQ(compassDirection(180), "south");
    EXPECT_EQ(compassDirection(225), "south-west");
    EXPECT_EQ(compassDirection(270), "west");
    EXPECT_EQ(compassDirection(315), "north-west");
    EXPECT_EQ(compassDirection(359), "north");
    EXPECT_EQ(compassDirection(-90), "west");
}

TEST(Compass, inShortAPointHasALetterOrTwo)
{
    EXPECT_EQ(compassPoint(0), "N");
    EXPECT_EQ(compassPoint(45), "NE");
    EXPECT_EQ(compassPoint(90), "E");
    EXPECT_EQ(compassPoint(135), "SE");
    EXPECT_EQ(compassPoint(-180), "S");
    EXPECT_EQ(compassPoint(225), "SW");
    EXPECT_EQ(compassPoint(270), "W");
    EXPECT_EQ(compassPoint(315), "NW");
}

} // namespace skyvane
