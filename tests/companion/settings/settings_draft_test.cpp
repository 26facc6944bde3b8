#include "companion/settings/settings_draft.h"

#include <gtest/gtest.h>

namespace skyvane {

namespace {

const SharedState::Config aroundLisbon{
    .home = {.latitude = 38.7, .longitude = -9.1, .label = "Lisbon"},
    .radiusNM = 30,
    .distanceUnit = "km",
    .widgetColorHex = "#ffb000",
};

} // namespace

TEST(SettingsDraft, aConfigurationComesBackAsItWas)
{
    EXPECT_EQ(SettingsDraft::of(aroundLisbon).toConfig(), aroundLisbon);
}

TEST(SettingsDraft, valuesThatNothingHereOffersAreKept)
{
    const SharedState::Config odd{
        .home = {.latitude = 95, .longitude = -200, .label = ""},
        .radiusNM = 1000,
        .distanceUnit = "furlong",
        .widgetColorHex = "no colour",
    };
    EXPECT_EQ(SettingsDraft::of(odd).toConfig(), odd);
}

TEST(SettingsDraft, withoutAPlaceThereIsNothingToWrite)
{
    EXPECT_EQ((SettingsDraft{.label = "Home", .unit = "km"}).toConfig(), std::nullopt);
}

TEST(SettingsDraft, fieldsThatWereNotChosenFollowTheFile)
{
    const SettingsDraft before = SettingsDraft::of(aroundLisbon);
    SettingsDraft draft = before;
    draft.radiusNM = 50;
    SettingsDraft now = before;
    now.label = "Away";
    now.accentHex.reset();
    now.radiusNM = 99;
    SettingsDraft expected = now;
    expected.radiusNM = 50;
    EXPECT_EQ(merged(draft, before, now), expected);
}

TEST(SettingsDraft, everyFieldFollowsOnItsOwn)
{
    const SettingsDraft before = SettingsDraft::of(aroundLisbon);
    const SettingsDraft now{
        .place = Coordinate{.latitude = 1, .longitude = 2}, .label = "L", .radiusNM = 3, .unit = "nm"};
    EXPECT_EQ(merged(before, before, now), now);
    EXPECT_EQ(merged(now, before, before), now);
}

} // namespace skyvane
