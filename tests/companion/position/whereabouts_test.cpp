#include "companion/position/whereabouts.h"

#include "companion/position/folded.h"
#include "platform/pinned.h"
#include "platform/text/locale.h"

#include <gtest/gtest.h>

#include <string>

namespace skyvane {

TEST(Whereabouts, areToldByDistanceAndCompassPoint)
{
    const NearbyPlace munich{.name = "Munich", .distanceNM = 3 / 1.852, .bearingDeg = 315};
    EXPECT_EQ(whereabouts(munich, "km"), "3 km north-west of Munich");
    EXPECT_EQ(whereabouts(munich, "mi"), "2 mi north-west of Munich");
    const char* const points[]
        = {"north", "north-east", "east", "south-east", "south", "south-west", "west", "north-west"};
    for (int point = 0; point < 8; ++point) {
        const NearbyPlace there{.name = "X", .distanceNM = 10, .bearingDeg = 45.0 * point};
        EXPECT_EQ(whereabouts(there, "nm").toStdString(), std::string{"10 nm "} + points[point] + " of X");
    }
    EXPECT_EQ(whereabouts({.name = "X", .distanceNM = 10, .bearingDeg = 359}, "nm"), "10 nm north of X");
}

TEST(Whereabouts, withinAPlaceAreThePlace)
{
    EXPECT_EQ(whereabouts({.name = "Munich", .distanceNM = 0.3, .bearingDeg = 90}, "km"), "In Munich");
    EXPECT_EQ(
        whereabouts({.name = "Munich", .distanceNM = 0.51, .bearingDeg = 90}, "mi"), "1 mi east of Munich");
}

TEST(Whereabouts, areAsExactAsOneSaysIt)
{
    const Pinned<Locale> locale{{.numbers = "en_US", .times = "en_US", .timeZone = "UTC"}};
    EXPECT_EQ(exactness(31, "km"), "30 m");
    EXPECT_EQ(exactness(1, "nm"), "5 m");
    EXPECT_EQ(exactness(30, "mi"), "100 ft");
    EXPECT_EQ(exactness(25000, "km"), "25 km");
    EXPECT_EQ(exactness(25000, "mi"), "16 mi");
    EXPECT_EQ(exactness(999, "km"), "1,000 m");
}

TEST(Folded, forgivesOneTypingError)
{
    EXPECT_TRUE(Folded::isNearly("berlin", "berlin"));
    EXPECT_TRUE(Folded::isNearly("belrin", "berlin")) << "two swapped";
    EXPECT_TRUE(Folded::isNearly("berln", "berlin")) << "one missing";
    EXPECT_TRUE(Folded::isNearly("berllin", "berlin")) << "one too many";
    EXPECT_TRUE(Folded::isNearly("berlim", "berlin")) << "one wrong";
    EXPECT_TRUE(Folded::isNearly("москав", "москва"));
    EXPECT_TRUE(Folded::isNearly("москв", "москва"));
    EXPECT_FALSE(Folded::isNearly("belrim", "berlin"));
    EXPECT_FALSE(Folded::isNearly("berl", "berlin"));
    EXPECT_FALSE(Folded::isNearly("brelni", "berlin"));
    EXPECT_FALSE(Folded::isNearly("berlin", "берлин"));
}

TEST(Folded, writesUmlautsOut)
{
    EXPECT_EQ(Folded::text("Saint-Étienne"), "saint etienne");
    EXPECT_EQ(Folded::text("München"), "munchen");
    EXPECT_EQ(Folded::writtenOut("München"), "muenchen");
    EXPECT_EQ(Folded::writtenOut("Berlin"), "");
    EXPECT_EQ(Folded::text("L'Aquila"), "laquila");
    EXPECT_EQ(Folded::text(" --Foo  (bar)- "), "foo bar");
    EXPECT_EQ(Folded::text("東京"), "東京");
}

} // namespace skyvane
