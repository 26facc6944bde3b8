#include "companion/position/place_index.h"

#include "companion/position/world_places.h"

#include <gmock/gmock.h>

#include <cmath>
#include <ctime>
#include <unordered_set>

namespace skyvane {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

Place city(const std::string& name, const std::string& region, const std::string& country)
{
    return {
        .name = name, .englishName = name, .region = region, .countryCode = country, .coordinate = {1, 2}};
}

Place airport(const std::string& name, const std::string& code, const std::string& region)
{
    return {.name = name,
        .englishName = name,
        .region = region,
        .countryCode = "DE",
        .code = code,
        .coordinate = {1, 2}};
}

Place principal(Place place)
{
    place.isPrincipal = true;
    return place;
}

std::vector<Place> somePlaces()
{
    Place munich = city("München", "Bavaria, Germany", "DE");
    munich.englishName = "Munich";
    return {
        city("London", "Kentucky, United States", "US"),
        city("Londonderry", "Northern Ireland, United Kingdom", "GB"),
        city("East London", "South Africa", "ZA"),
        principal(city("London", "United Kingdom", "GB")),
        munich,
        airport("Munich", "EDDM", "Bavaria, Germany"),
        city("Saint-Étienne", "France", "FR"),
        city("Łódź", "Poland", "PL"),
        city("Portland", "Maine, United States", "US"),
        city("Portland", "Oregon, United States", "US"),
        principal(city("Porto-Novo", "Benin", "BJ")),
    };
}

std::vector<std::string> found(const char* typed, const char* country = "US")
{
    std::vector<std::string> titles;
    for (const Place& place : PlaceIndex{somePlaces()}.find(typed, country, 10))
        titles.push_back(place.title());
    return titles;
}

} // namespace

TEST(PlaceIndex, theNameItselfComesFirstThenItsBeginningThenItsWords)
{
    EXPECT_THAT(found("london"),
        ElementsAre("London, United Kingdom", "London, Kentucky, United States",
            "Londonderry, Northern Ireland, United Kingdom", "East London, South Africa"));
}

TEST(PlaceIndex, ofBeginningsTheOwnCountrysComeFirst)
{
    EXPECT_THAT(found("lond", "US").front(), "London, Kentucky, United States");
    EXPECT_THAT(found("lond", "gb").front(), "London, United Kingdom");
    EXPECT_THAT(found("port"),
        ElementsAre(
            "Portland, Maine, United States", "Portland, Oregon, United States", "Porto-Novo, Benin"));
}

TEST(PlaceIndex, caseAccentsAndPunctuationMakeNoDifference)
{
    for (const char* typed : {"saint-etienne", "SAINT ETIENNE", "Saint-Étienne", " saint   étien"})
        EXPECT_THAT(found(typed), ElementsAre("Saint-Étienne, France")) << typed;
    EXPECT_THAT(found("lodz"), ElementsAre("Łódź, Poland"));
}

TEST(PlaceIndex, aPlaceIsFoundInTheUsersLanguageAndInEnglishCitiesBeforeAirports)
{
    EXPECT_THAT(found("munich"), ElementsAre("München, Bavaria, Germany", "Munich (EDDM), Bavaria, Germany"));
    EXPECT_THAT(found("munchen"), ElementsAre("München, Bavaria, Germany"));
}

TEST(PlaceIndex, anAirportIsFoundByItsCode)
{
    EXPECT_THAT(found("eddm"), ElementsAre("Munich (EDDM), Bavaria, Germany"));
}

TEST(PlaceIndex, theRegionTellsNamesakesApart)
{
    EXPECT_THAT(found("portland or"), ElementsAre("Portland, Oregon, United States"));
    EXPECT_THAT(found("london kent"), ElementsAre("London, Kentucky, United States"));
    EXPECT_THAT(found("portland, kentucky"), IsEmpty());
}

TEST(PlaceIndex, aPartInTheMiddleOfANameIsTheLastResort)
{
    EXPECT_THAT(
        found("tland"), ElementsAre("Portland, Maine, United States", "Portland, Oregon, United States"));
    EXPECT_THAT(found("an"), IsEmpty());
}

TEST(PlaceIndex, nothingTypedFindsNothing)
{
    EXPECT_THAT(found(""), IsEmpty());
    EXPECT_THAT(found(" ,-'"), IsEmpty());
}

TEST(PlaceIndex, noMoreThanTheLimitAreFound)
{
    EXPECT_THAT(PlaceIndex{somePlaces()}.find("l", "US", 2), SizeIs(2));
}

TEST(WorldPlaces, knowCitiesAndAirportsOnceEach)
{
    const std::vector<Place> places = WorldPlaces::load();
    EXPECT_GT(places.size(), 6000U);
    std::unordered_set<std::string> codes;
    for (const Place& place : places) {
        EXPECT_FALSE(place.name.empty());
        EXPECT_LE(std::abs(place.coordinate.latitude), 90) << place.title();
        EXPECT_LE(std::abs(place.coordinate.longitude), 180) << place.title();
        const bool isNew = place.code.empty() || codes.insert(place.code).second;
        EXPECT_TRUE(isNew) << place.title();
    }
}

TEST(WorldPlaces, areFoundAsOneExpects)
{
    const PlaceIndex index{WorldPlaces::load()};
    const auto best = [&](const char* typed) { return index.find(typed, "US", 1).at(0).title(); };
    EXPECT_EQ(best("london"), "London, East and South East England, United Kingdom");
    EXPECT_EQ(best("Berlin"), "Berlin, Germany");
    EXPECT_EQ(best("egll"), "Heathrow Airport (EGLL), East and South East England, United Kingdom");
    EXPECT_EQ(best("portland ore"), "Portland, Oregon, United States");
    EXPECT_EQ(best("new yo"), "New York, United States");
}

TEST(WorldPlaces, areSearchedWithoutAPauseThatOneFeels)
{
    const PlaceIndex index{WorldPlaces::load()};
    const std::clock_t start = std::clock();
    for (const char* typed : {"s", "sa", "san", "san f", "x"})
        index.find(typed, "US", 12);
    const double milliseconds = 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC / 5;
    RecordProperty("processorMillisecondsEach", std::to_string(milliseconds));
    EXPECT_LT(milliseconds, 200); // Several times what it takes with sanitizers.
}

} // namespace skyvane
