#include "hosts/plasma/family_choice.h"

#include <gtest/gtest.h>

namespace skyvane {

namespace {

constexpr auto small = WidgetFamily::small;
constexpr auto medium = WidgetFamily::medium;
constexpr auto large = WidgetFamily::large;

} // namespace

TEST(FamilyChoice, theLargestThatFitsIsTaken)
{
    const std::vector all{small, medium, large};
    EXPECT_EQ(familyFor({.width = 170, .height = 170}, all), small);
    EXPECT_EQ(familyFor({.width = 363, .height = 381}, all), large);
    EXPECT_EQ(familyFor({.width = 364, .height = 170}, all), medium);
    EXPECT_EQ(familyFor({.width = 364, .height = 300}, all), medium);
    EXPECT_EQ(familyFor({.width = 300, .height = 400}, all), small);
    EXPECT_EQ(familyFor({.width = 4000, .height = 4000}, all), large);
}

TEST(FamilyChoice, whereNoneFitsItIsTheSmallestOfThem)
{
    EXPECT_EQ(familyFor({.width = 40, .height = 40}, {large, medium}), medium);
    EXPECT_EQ(familyFor({.width = 0, .height = 0}, {small}), small);
}

TEST(FamilyChoice, theOrderOfTheFamiliesDoesNotMatter)
{
    EXPECT_EQ(familyFor({.width = 400, .height = 200}, {large, small, medium}), medium);
    EXPECT_EQ(familyFor({.width = 400, .height = 200}, {medium, small, large}), medium);
}

} // namespace skyvane
