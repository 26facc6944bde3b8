#include "core/model/home_location.h"

#include "core/model/fields.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

HomeLocation decode(std::string_view json)
{
    return JSON::decodeText<HomeLocation>(json);
}

TEST(HomeLocation, aWholeLatitudeIsADouble)
{
    EXPECT_EQ(decode(R"({"latitude":52,"longitude":-0.12,"label":"Home"})"),
        (HomeLocation{.latitude = 52.0, .longitude = -0.12, .label = "Home"}));
}

TEST(HomeLocation, withoutALabelItFails)
{
    EXPECT_THROW(decode(R"({"latitude":52,"longitude":-0.12})"), JSON::DecodingError);
}

TEST(HomeLocation, aLatitudeAsTextFails)
{
    EXPECT_THROW(decode(R"({"latitude":"52","longitude":-0.12,"label":"Home"})"), JSON::DecodingError);
}

TEST(HomeLocation, differsInAnyOfItsThreeFields)
{
    const HomeLocation home{.latitude = 1, .longitude = 2, .label = "X"};
    EXPECT_NE(home, (HomeLocation{.latitude = 0, .longitude = 2, .label = "X"}));
    EXPECT_NE(home, (HomeLocation{.latitude = 1, .longitude = 0, .label = "X"}));
    EXPECT_NE(home, (HomeLocation{.latitude = 1, .longitude = 2, .label = "Y"}));
}

} // namespace
} // namespace skyvane
