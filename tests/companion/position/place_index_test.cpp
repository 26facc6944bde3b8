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
    for (const Place& place : PlaceIndex{somePlaces()}.find(typed, {.countryCode = country}, 10))
        titles.push_back(place.title());
    return titles;
}

/// Loaded once for all tests.
const std::vector<Place>& worldPlaces()
{
    static const std::vector<Place> places = WorldPlaces::loadWithAllNames();
    return places;
}

const PlaceIndex& worldIndex()
{
    static const PlaceIndex index{worldPlaces()};
    return index;
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

TEST(PlaceIndex, aPlaceIsFoundByItsNamesInOtherLanguages)
{
    Place tokyo = city("Tokyo", "Japan", "JP");
    tokyo.otherNames = {"東京", "Tokio", "Τόκιο"};
    Place cologne = city("Cologne", "Germany", "DE");
    cologne.otherNames = {"Köln", "Colonia"};
    const PlaceIndex index{{tokyo, cologne, city("Colón", "Panama", "PA")}};
    for (const char* typed : {"東京", "東", "tokio", "τοκιο"})
        EXPECT_EQ(index.find(typed, {}, 1).at(0).name, "Tokyo") << typed;
    for (const char* typed : {"köln", "KOLN", "koeln", "coloni"})
        EXPECT_EQ(index.find(typed, {}, 1).at(0).name, "Cologne") << typed;
    EXPECT_EQ(index.find("colon", {}, 1).at(0).name, "Colón");
}

TEST(PlaceIndex, oneTypingErrorIsForgivenWhereNothingElseFits)
{
    EXPECT_THAT(found("lodnon").front(), "London, United Kingdom");
    EXPECT_THAT(found("munihc"), ElementsAre("München, Bavaria, Germany", "Munich (EDDM), Bavaria, Germany"));
    EXPECT_THAT(found("londondery"), ElementsAre("Londonderry, Northern Ireland, United Kingdom"));
    EXPECT_THAT(found("Londno Kentucky"), ElementsAre("London, Kentucky, United States"));
    EXPECT_THAT(found("saint etine"), ElementsAre("Saint-Étienne, France"));
    EXPECT_THAT(found("lxndxn"), IsEmpty());
    EXPECT_THAT(found("lod"), ElementsAre("Łódź, Poland")) << "too short to be a mistake";
}

TEST(PlaceIndex, whatIsNearTheTimeZoneComesBeforeEqualNamesElsewhere)
{
    Place paris = principal(city("Paris", "France", "FR"));
    paris.timeZone = "Europe/Paris";
    Place texas = city("Paris", "Texas, United States", "US");
    texas.timeZone = "America/Chicago";
    Place chicago = principal(city("Chicago", "Illinois, United States", "US"));
    chicago.timeZone = "America/Chicago";
    Place kentucky = city("Paris", "Kentucky, United States", "US");
    kentucky.coordinate = {.latitude = 1.5, .longitude = 2.5};
    kentucky.timeZone = "America/New_York";
    kentucky.thousands = 10;
    Place far = city("Paris", "Nowhere", "XX");
    far.coordinate = {.latitude = -40, .longitude = 170};
    paris.coordinate = {.latitude = 48.9, .longitude = 2.4};
    const PlaceIndex index{{paris, texas, chicago, kentucky, far}};
    const auto regions = [&](const char* zone) {
        std::vector<std::string> list;
        for (const Place& place : index.find("paris", {.timeZone = zone}, 4))
            list.push_back(place.region);
        return list;
    };
    EXPECT_THAT(regions("America/Chicago"),
        ElementsAre("Kentucky, United States", "Texas, United States", "France", "Nowhere"));
    EXPECT_THAT(regions("Europe/Paris").front(), "France");
    EXPECT_THAT(regions("").front(), "France");
    EXPECT_THAT(regions("Etc/Nowhere").front(), "France");
}

TEST(PlaceIndex, ofEqualsTheLargerComesFirst)
{
    Place small = city("Springfield", "A", "US");
    small.thousands = 60;
    Place large = city("Springfield", "B", "US");
    large.thousands = 160;
    EXPECT_EQ((PlaceIndex{{small, large}}.find("spring", {}, 1).at(0).region), "B");
}

TEST(PlaceIndex, anAirportIsFoundByEitherCodeBeforeNamesThatBeginSo)
{
    Place airfield = airport("Berlin Brandenburg Airport", "EDDB", "Germany");
    airfield.shortCode = "BER";
    const PlaceIndex index{{city("Berkeley", "California", "US"), city("Berlin", "Germany", "DE"), airfield}};
    EXPECT_EQ(index.find("ber", {}, 1).at(0).title(), "Berlin Brandenburg Airport (BER, EDDB), Germany");
    EXPECT_EQ(index.find("eddb", {}, 1).at(0).code, "EDDB");
    EXPECT_EQ(index.find("berl", {}, 1).at(0).title(), "Berlin, Germany");
}

TEST(PlaceIndex, saysWhichCityIsNearTheLargeOneRatherThanTheNext)
{
    Place munich = city("Munich", "Germany", "DE");
    munich.coordinate = {.latitude = 48.137, .longitude = 11.575};
    munich.thousands = 1260;
    Place suburb = city("Vorort", "Germany", "DE");
    suburb.coordinate = {.latitude = 48.17, .longitude = 11.53};
    suburb.thousands = 15;
    Place field = airport("Field", "EDXX", "Germany");
    field.coordinate = {.latitude = 48.156, .longitude = 11.546};
    const PlaceIndex index{{munich, suburb, field}};
    const auto nearby = index.nearest({.latitude = 48.156, .longitude = 11.5464});
    ASSERT_TRUE(nearby);
    EXPECT_EQ(nearby->name, "Munich");
    EXPECT_NEAR(nearby->distanceNM * 1.852, 3, 0.1);
    EXPECT_NEAR(nearby->bearingDeg, 315, 1);
    EXPECT_EQ(index.nearest({.latitude = 48.17, .longitude = 11.53})->name, "Vorort");
    EXPECT_FALSE(index.nearest({.latitude = 0, .longitude = 0}));
    EXPECT_TRUE(index.isNameOfThere("münich", {.latitude = 48.2, .longitude = 11.6}));
    EXPECT_FALSE(index.isNameOfThere("Munich", {.latitude = 52, .longitude = 13}));
}

TEST(PlaceIndex, noMoreThanTheLimitAreFound)
{
    EXPECT_THAT(PlaceIndex{somePlaces()}.find("l", {.countryCode = "US"}, 2), SizeIs(2));
}

TEST(WorldPlaces, knowCitiesAndAirportsOnceEach)
{
    const std::vector<Place>& places = worldPlaces();
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
    const PlaceIndex& index = worldIndex();
    const auto best
        = [&](const char* typed) { return index.find(typed, {.countryCode = "US"}, 1).at(0).title(); };
    EXPECT_EQ(best("london"), "London, East and South East England, United Kingdom");
    EXPECT_EQ(best("Berlin"), "Berlin, Germany");
    EXPECT_EQ(
        best("egll"), "London Heathrow Airport (LHR, EGLL), East and South East England, United Kingdom");
    EXPECT_EQ(best("portland ore"), "Portland, Oregon, United States");
    EXPECT_EQ(best("new yo"), "New York, United States");
    EXPECT_EQ(
        best("LHR"), "London Heathrow Airport (LHR, EGLL), East and South East England, United Kingdom");
    EXPECT_EQ(best("JFK"), "John F Kennedy International Airport (JFK, KJFK), New York, United States");
    EXPECT_EQ(best("BER"), "Berlin Brandenburg Airport (BER, EDDB), Berlin, Germany");
    EXPECT_EQ(best("東京"), "Tokyo, Japan");
    EXPECT_EQ(best("Москва"), "Moscow, Russia");
    EXPECT_EQ(best("München"), "Munich, Bavaria, Germany");
    EXPECT_EQ(best("Muenchen"), "Munich, Bavaria, Germany");
    EXPECT_EQ(best("Köln"), "Köln, North Rhine-Westphalia, Germany");
    EXPECT_EQ(best("Wien"), "Vienna, Austria");
    EXPECT_EQ(best("Belrin"), "Berlin, Germany");
    EXPECT_EQ(best("Kreuzberg"), "Kreuzberg, Germany");
}

TEST(WorldPlaces, areFoundFirstAroundTheUsersTimeZone)
{
    const PlaceIndex& index = worldIndex();
    const auto best = [&](const char* typed, const char* zone) {
        return index.find(typed, {.countryCode = "US", .timeZone = zone}, 1).at(0).title();
    };
    EXPECT_EQ(best("Frankf", "Europe/Berlin"), "Frankfurt am Main, Hesse, Germany");
    EXPECT_EQ(best("Portland", "America/New_York"), "Portland, Maine, United States");
    EXPECT_EQ(best("Portland", "America/Los_Angeles"), "Portland, Oregon, United States");
    EXPECT_EQ(best("Birmingham", "Europe/London"), "Birmingham, Midlands, United Kingdom");
    EXPECT_EQ(best("Birmingham", "America/Chicago"), "Birmingham, Alabama, United States");
}

TEST(WorldPlaces, areNoneTwice)
{
    const PlaceIndex& index = worldIndex();
    for (const char* typed : {"Munich", "Vienna", "Tokyo", "Warsaw", "Lisbon", "Moscow"}) {
        const auto found = index.find(typed, {}, 2);
        ASSERT_EQ(found.size(), 2U);
        EXPECT_NE(found[0].coordinate, found[1].coordinate) << typed;
        const bool isSameAgain
            = found[0].countryCode == found[1].countryCode && found[0].name == found[1].name;
        EXPECT_FALSE(isSameAgain) << found[0].title() << " and " << found[1].title();
    }
}

TEST(WorldPlaces, areSearchedWithoutAPauseThatOneFeels)
{
    const PlaceIndex& index = worldIndex();
    const std::clock_t start = std::clock();
    for (const char* typed : {"s", "sa", "san", "san f", "x"})
        index.find(typed, {.countryCode = "US"}, 12);
    const double milliseconds = 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC / 5;
    RecordProperty("processorMillisecondsEach", std::to_string(milliseconds));
    EXPECT_LT(milliseconds, 200); // Several times what it takes with sanitizers.
}

} // namespace skyvane
