#include "companion/alerts/star.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace skyvane {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const Aircraft jumbo{.hex = "4007f0", .flight = "BAW117", .registration = "G-CIVW "};

} // namespace

TEST(StarTest, putsTheRegistrationOnTheListAndTakesItOffAgain)
{
    const auto starred = Star::toggled({"RCH*"}, jumbo);
    EXPECT_THAT(starred, ElementsAre("RCH*", "G-CIVW"));
    EXPECT_TRUE(Star::isOn(starred, jumbo));
    EXPECT_THAT(Star::toggled(starred, jumbo), ElementsAre("RCH*"));
}

TEST(StarTest, isTheAddressWhereThereIsNoRegistration)
{
    EXPECT_THAT(Star::toggled({}, {.hex = "4007f0"}), ElementsAre("4007f0"));
    EXPECT_THAT(Star::toggled({}, {.hex = "4007f0", .registration = " "}), ElementsAre("4007f0"));
    EXPECT_THAT(Star::toggled({}, {.hex = "4007f0", .registration = "G*"}), ElementsAre("4007f0"));
}

TEST(StarTest, isOnForThisVeryAircraftInAnyCase)
{
    EXPECT_TRUE(Star::isOn({"g-civw"}, jumbo));
    EXPECT_TRUE(Star::isOn({"4007F0"}, jumbo));
    EXPECT_FALSE(Star::isOn({"BAW117"}, jumbo)); // Tomorrow another one flies under it.
    EXPECT_FALSE(Star::isOn({"G-C*", "*"}, jumbo));
    EXPECT_FALSE(Star::isOn({""}, {.hex = "", .registration = ""}));
}

TEST(StarTest, takenOffAllNamesOfTheAircraftGo)
{
    EXPECT_THAT(Star::toggled({"4007f0", "G-CIVW", "B744"}, jumbo), ElementsAre("B744"));
}

TEST(StarTest, aFullListAndWhatHasNoNameStayAsTheyAre)
{
    const std::vector<std::string> full(200, "A");
    EXPECT_EQ(Star::toggled(full, jumbo), full);
    EXPECT_THAT(Star::toggled({}, {.hex = std::string(10'000, 'a')}), IsEmpty());
    EXPECT_THAT(Star::toggled({}, {.hex = ""}), IsEmpty());
}

} // namespace skyvane
