#include "companion/sky/trails.h"

#include <gmock/gmock.h>

namespace skyvane {

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Date noon{std::chrono::hours{12}};

Aircraft at(double latitude, std::optional<double> age = std::nullopt)
{
    return {.hex = "a1b2c3", .lat = latitude, .lon = 8, .seenPos = age};
}

SkyEntry sky(Date date, std::vector<Aircraft> aircraft)
{
    SkyEntry entry = SkyEntry::around(std::nullopt, std::move(aircraft));
    entry.date = date;
    return entry;
}

class TrailsTest : public testing::Test {
protected:
    std::vector<double> latitudes() const
    {
        std::vector<double> list;
        for (const Trails::Sighting& sighting : trails.of("a1b2c3"))
            list.push_back(sighting.place.latitude);
        return list;
    }

    Trails trails;
};

} // namespace

TEST_F(TrailsTest, whereAnAircraftWasSeenIsKeptInOrder)
{
    trails.note(sky(noon, {at(50)}));
    trails.note(sky(noon + 1min, {at(50.1)}));
    trails.note(sky(noon + 2min, {at(50.2)}));
    EXPECT_THAT(latitudes(), ElementsAre(50, 50.1, 50.2));
    EXPECT_THAT(trails.of("elsewhere"), IsEmpty());
}

TEST_F(TrailsTest, theSameSkyOnceMoreChangesNothing)
{
    trails.note(sky(noon, {at(50)}));
    trails.note(sky(noon, {at(51)}));
    EXPECT_THAT(latitudes(), ElementsAre(50));
}

TEST_F(TrailsTest, aPlaceIsAsOldAsItsMessage)
{
    trails.note(sky(noon, {at(50, 20)}));
    ASSERT_EQ(trails.of("a1b2c3").size(), 1U);
    EXPECT_EQ(trails.of("a1b2c3").front().at, noon - 20s);
}

TEST_F(TrailsTest, thePlaceThatIsKnownAlreadyIsNotKeptTwice)
{
    trails.note(sky(noon, {at(50)}));
    trails.note(sky(noon + 1min, {at(50, 60)}));
    trails.note(sky(noon + 2min, {at(50)}));
    EXPECT_THAT(latitudes(), ElementsAre(50));
}

TEST_F(TrailsTest, whoAsksEverySecondHasNoLongerTrails)
{
    for (int second = 0; second < 60; ++second)
        trails.note(sky(noon + std::chrono::seconds{second}, {at(50 + second)}));
    EXPECT_THAT(latitudes(), ElementsAre(50, 60, 70, 80, 90, 100));
}

TEST_F(TrailsTest, anHourLaterNothingIsLeft)
{
    trails.note(sky(noon, {at(50)}));
    trails.note(sky(noon + 30min, {at(51)}));
    trails.note(sky(noon + 61min, {}));
    EXPECT_THAT(latitudes(), ElementsAre(51));
    trails.note(sky(noon + 91min, {}));
    EXPECT_THAT(latitudes(), IsEmpty());
}

TEST_F(TrailsTest, aClockThatIsSetBackBeginsTrailsAnew)
{
    trails.note(sky(noon, {at(50)}));
    trails.note(sky(noon - 3h, {at(51)}));
    EXPECT_THAT(latitudes(), ElementsAre(51));
}

TEST_F(TrailsTest, withoutAPositionThereIsNoTrail)
{
    trails.note(sky(noon, {{.hex = "a1b2c3", .distanceNM = 3, .directionDeg = 90}}));
    EXPECT_THAT(latitudes(), IsEmpty());
}

} // namespace skyvane
