#include "companion/position/grid_code.h"

#include "companion/position/coordinates.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace skyvane {

namespace {

void expectMiddle(const std::string& code, const Coordinate& expected, double within)
{
    SCOPED_TRACE(code);
    const auto middle = GridCode::middle(code);
    ASSERT_TRUE(middle);
    EXPECT_NEAR(middle->latitude, expected.latitude, within);
    EXPECT_NEAR(middle->longitude, expected.longitude, within);
    EXPECT_TRUE(std::holds_alternative<Coordinate>(Coordinates::read(" " + code + "\n")));
}

} // namespace

TEST(PlusCode, namesTheMiddleOfItsSquare)
{
    expectMiddle("7FG49QCJ+2V", {.latitude = 20.3700625, .longitude = 2.7821875}, 1e-7);
    expectMiddle("7fg49qcj+2v", {.latitude = 20.3700625, .longitude = 2.7821875}, 1e-7);
    expectMiddle("7FG49QCJ+2VX", {.latitude = 20.3701125, .longitude = 2.782234375}, 1e-7);
    expectMiddle("8FVC2222+22", {.latitude = 47.0000625, .longitude = 8.0000625}, 1e-7);
    expectMiddle("4VCPPQGP+Q9", {.latitude = -41.2730625, .longitude = 174.7859375}, 1e-7);
    expectMiddle("7FG40000+", {.latitude = 20.5, .longitude = 2.5}, 1e-7);
}

TEST(PlusCode, thatIsNoneIsNotRead)
{
    for (const char* text : {"", "+", "7FG49QCJ", "7FG49QCJ+2", "7FG49QCJ+2A", "7FG49Q+2VCJ", "0FG49QCJ+2V",
             "7FG4+0000", "00000000+", "7FG49QCJ+2V+", "FFFFFFFF+22", "7FG49QCJ+22222222222"})
        EXPECT_FALSE(GridCode::middle(text)) << text;
}

TEST(PlusCode, withoutItsBeginningIsAtHomeInItsTown)
{
    const auto code = GridCode::shortCode("4HPG+X5 Munich, Germany");
    ASSERT_TRUE(code);
    EXPECT_EQ(code->code, "4HPG+X5");
    EXPECT_EQ(code->town, "Munich, Germany");
    const auto middle = GridCode::middleNear(*code, {.latitude = 48.137, .longitude = 11.575});
    ASSERT_TRUE(middle);
    EXPECT_EQ(GridCode::middle("8FWH4HPG+X5")->latitude, middle->latitude);
    EXPECT_NEAR(middle->longitude, 11.5754375, 1e-4);
}

TEST(PlusCode, withoutItsBeginningIsTheNearestOfItsName)
{
    EXPECT_FALSE(GridCode::shortCode("QX+22"));
    const auto over
        = GridCode::middleNear({.code = "2222+22", .town = {}}, {.latitude = 47.9999, .longitude = 11});
    ASSERT_TRUE(over);
    EXPECT_NEAR(over->latitude, 48.0000625, 1e-7);
    EXPECT_NEAR(over->longitude, 11.0000625, 1e-7);
}

TEST(PlusCode, withoutItsBeginningIsSaidToLackIt)
{
    EXPECT_EQ(Coordinates::read("4HPG+X5"), Coordinates::Reading{Coordinates::Problem::shortCode});
    EXPECT_EQ(Coordinates::read("4HPG+X5 Munich"), Coordinates::Reading{Coordinates::Problem::shortCode});
    EXPECT_EQ(Coordinates::read("+45"), Coordinates::Reading{Coordinates::Problem::unreadable});
}

TEST(MaidenheadLocator, namesTheMiddleOfItsSquare)
{
    expectMiddle("JN58td", {.latitude = 48.1458333, .longitude = 11.625}, 1e-6);
    expectMiddle("IO91WM", {.latitude = 51.5208333, .longitude = -0.125}, 1e-6);
    expectMiddle("JN58", {.latitude = 48.5, .longitude = 11}, 1e-6);
    expectMiddle("JN58td25", {.latitude = 48.1479167, .longitude = 11.6041667}, 1e-6);
    expectMiddle("AA00aa", {.latitude = -90 + 1.0 / 48, .longitude = -180 + 1.0 / 24}, 1e-6);
    expectMiddle("RR99xx", {.latitude = 90 - 1.0 / 48, .longitude = 180 - 1.0 / 24}, 1e-6);
}

TEST(MaidenheadLocator, thatIsNoneIsNotRead)
{
    for (const char* text :
        {"JN", "JN5", "JN58t", "SN58td", "JS58td", "J558td", "JN58yd", "JN58tdx", "Home", "JN58td25aa0"})
        EXPECT_FALSE(GridCode::middle(text)) << text;
}

} // namespace skyvane
