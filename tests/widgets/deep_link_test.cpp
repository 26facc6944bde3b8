#include "widgets/deep_link.h"

#include "core/views/sample_entry.h"
#include "tests/core/sample_sky.h"

#include <gtest/gtest.h>

#include <string>

namespace skyvane {
namespace {

std::string linkTo(const std::string& hex)
{
    SkyEntry entry = test::skyOf(2);
    entry.aircraft[0].hex = hex;
    const auto url = deepLink(entry);
    return url ? url->text() : "none";
}

TEST(DeepLink, anEmptySkyOpensTheList)
{
    EXPECT_EQ(deepLink(test::skyOf(0))->text(), "skyvane://open");
}

TEST(DeepLink, aSampleOpensTheListThoughItHoldsAircraft)
{
    EXPECT_EQ(deepLink(sampleEntry())->text(), "skyvane://open");
}

TEST(DeepLink, otherwiseTheFirstAircraftAsItsHexStands)
{
    EXPECT_EQ(linkTo("a1b2c3"), "skyvane://aircraft/a1b2c3");
    EXPECT_EQ(linkTo("A1B2C3"), "skyvane://aircraft/A1B2C3");
    EXPECT_EQ(linkTo("~2a4f91"), "skyvane://aircraft/~2a4f91");
}

TEST(DeepLink, aHexThatFormsNoURLLeadsNowhere)
{
    EXPECT_EQ(linkTo("a1 b2"), "none");
    EXPECT_EQ(linkTo("%zz"), "none");
}

TEST(DeepLink, aHexOfMoreThan200BytesLeadsNowhere)
{
    EXPECT_EQ(linkTo(std::string(200, 'a')), "skyvane://aircraft/" + std::string(200, 'a'));
    EXPECT_EQ(linkTo(std::string(201, 'a')), "none");
    EXPECT_EQ(linkTo(std::string(10'000, 'a')), "none");
}

} // namespace
} // namespace skyvane
