#include "companion/position/coordinates.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>
#include <vector>

namespace skyvane {

namespace {

using Coordinates::Problem;

struct Spelling {
    std::string name;
    std::string text;
    Coordinate expected;
};

struct BadSpelling {
    std::string name;
    std::string text;
    Problem expected = Problem::unreadable;
};

constexpr Coordinate heathrow{.latitude = 51.4775, .longitude = -0.461389};

void expectRead(const std::vector<Spelling>& rows)
{
    for (const Spelling& row : rows) {
        SCOPED_TRACE(row.name + ": " + row.text);
        const auto reading = Coordinates::read(row.text);
        const auto* read = std::get_if<Coordinate>(&reading);
        ASSERT_NE(read, nullptr);
        EXPECT_NEAR(read->latitude, row.expected.latitude, 1e-6);
        EXPECT_NEAR(read->longitude, row.expected.longitude, 1e-6);
    }
}

void expectRefused(const std::vector<BadSpelling>& rows)
{
    for (const BadSpelling& row : rows) {
        SCOPED_TRACE(row.name + ": " + row.text);
        EXPECT_EQ(Coordinates::read(row.text), Coordinates::Reading{row.expected});
    }
}

} // namespace

TEST(Coordinates, decimalDegreesAreRead)
{
    expectRead({
        {"commaAndBlank", "51.4775, -0.461389", heathrow},
        {"commaAlone", "51.4775,-0.461389", heathrow},
        {"blankAlone", "51.4775 -0.461389", heathrow},
        {"manyBlanksAround", "  51.4775 \t\n-0.461389 \r\n", heathrow},
        {"noBreakSpace", "51.4775,\u00A0-0.461389", heathrow},
        {"semicolon", "51.4775; -0.461389", heathrow},
        {"minusSign", "51.4775, \u22120.461389", heathrow},
        {"plusSigns", "+45.5, +12.25", {45.5, 12.25}},
        {"wholeDegrees", "45, 12", {45, 12}},
        {"wholeDegreesTightly", "45,12", {45, 12}},
        {"degreeMarks", "51.4775° -0.461389°", heathrow},
        {"lettersBehind", "51.4775N 0.461389W", heathrow},
        {"lettersBefore", "N 51.4775, W 0.461389", heathrow},
        {"smallLetters", "51.4775 n 0.461389 w", heathrow},
        {"longitudeFirst", "0.461389° W, 51.4775° N", heathrow},
        {"southAndEast", "33.8688 S 151.2093 E", {-33.8688, 151.2093}},
        {"theVeryEdges", "-90, 180", {-90, 180}},
        {"manyDecimals", "51.47750000000000000000000001, -0.46138900000000000000", heathrow},
    });
}

TEST(Coordinates, decimalCommasAreReadWhereTheyAreMeant)
{
    expectRead({
        {"blank", "51,4775 -0,461389", heathrow},
        {"commaAndBlank", "51,4775, -0,461389", heathrow},
        {"semicolon", "51,4775;-0,461389", heathrow},
        {"commaBeforeASign", "51,4775,-0,461389", heathrow},
        {"letters", "51,4775 N 0,461389 W", heathrow},
        {"oneOfTheTwo", "51,5 7", {51.5, 7}},
        {"degreeMarks", "51,5° 7,25°", {51.5, 7.25}},
        {"minutes", "51° 28,65' N, 0° 27,68334' W", heathrow},
    });
}

TEST(Coordinates, degreesMinutesAndSecondsAreRead)
{
    expectRead({
        {"plainMarks", "51°28'39\"N 0°27'41\"W", heathrow},
        {"primes", "51°28′39″N 0°27′41″W", heathrow},
        {"curlyQuotes", "51° 28’ 39” N, 0° 27’ 41” W", heathrow},
        {"twoSinglesForSeconds", "51°28'39''N, 0°27'41''W", heathrow},
        {"twoPrimesForSeconds", "51°28′39′′N, 0°27′41′′W", heathrow},
        {"ordinalForDegrees", "51º28'39\"N 0º27'41\"W", heathrow},
        {"decimalSeconds", "51°28'39.0\"N 0°27'41.00\"W", heathrow},
        {"decimalMinutes", "51°28.65'N 0°27.68334'W", heathrow},
        {"lettersBefore", "N51°28'39\" W0°27'41\"", heathrow},
        {"signs", "51°28'39\", -0°27'41\"", heathrow},
        {"signsWithoutAComma", "51°28'39\" -0°27'41\"", heathrow},
        {"noMarksButLetters", "51 28 39 N 0 27 41 W", heathrow},
        {"noMarksLettersBefore", "N 51 28 39, W 0 27 41", heathrow},
        {"lastMarkLeftOut", "51°28'39 N 0°27'41 W", heathrow},
        {"noSeconds", "51°30' 0°30'", {51.5, 0.5}},
        {"longitudeFirst", "0°27'41\"W 51°28'39\"N", heathrow},
    });
}

TEST(Coordinates, aGeoUriIsRead)
{
    expectRead({
        {"plain", "geo:51.4775,-0.461389", heathrow},
        {"blanksAround", " geo:51.4775,-0.461389\n", heathrow},
        {"altitude", "geo:51.4775,-0.461389,25", heathrow},
        {"uncertainty", "geo:51.4775,-0.461389;u=35", heathrow},
        {"referenceSystem", "geo:51.4775,-0.461389;crs=WGS84;u=35;other=x%20y", heathrow},
        {"zoomQuery", "geo:51.4775,-0.461389?z=11&q=a,b", heathrow},
        {"capitalScheme", "GEO:51.4775,-0.461389", heathrow},
        {"whole", "geo:13,48", {13, 48}},
        {"placeholderAndQuery", "geo:0,0?q=51.4775,-0.461389(Heathrow)", heathrow},
        {"placeholderAlone", "geo:0,0", {0, 0}},
    });
}

TEST(Coordinates, bracketsBlanksAndLineBreaksAroundSayNothing)
{
    expectRead({
        {"round", "(51.4775, -0.461389)", heathrow},
        {"square", "[51.4775, -0.461389]", heathrow},
        {"aroundEach", "(51.4775) (-0.461389)", heathrow},
        {"lineBreaks", "\n\n 51.4775, -0.461389 \r\n\t", heathrow},
        {"lineBreakBetween", "51.4775\n-0.461389", heathrow},
        {"manyBlanks", std::string(300, ' ') + "51.4775, -0.461389", heathrow},
        {"slash", "51.4775 / -0.461389", heathrow},
    });
}

TEST(Coordinates, aWordMaySayWhichAngleItIs)
{
    expectRead({
        {"short", "lat: 51.4775, lon: -0.461389", heathrow},
        {"withoutAComma", "lat: 51.4775 lon: -0.461389", heathrow},
        {"turned", "lon: -0.461389 lat: 51.4775", heathrow},
        {"query", "lat=51.4775&lng=-0.461389", heathrow},
        {"long", "Latitude 51.4775, Longitude -0.461389", heathrow},
        {"behind", "51.4775 lat, -0.461389 long", heathrow},
        {"twoLines", "Latitude: 51.4775\nLongitude: -0.461389", heathrow},
        {"decimalComma", "lat: 51,4775; lon: -0,461389", heathrow},
        {"withLetters", "lat: 51.4775 N, lon: 0.461389 W", heathrow},
        {"minutes", "lat 51 28 39 lon -0 27 41", heathrow},
        {"german", "Breite: 51,4775, Länge: -0,461389", heathrow},
        {"germanCapitals", "LÄNGENGRAD -0.461389 BREITENGRAD 51.4775", heathrow},
        {"spanish", "latitud 51.4775, longitud -0.461389", heathrow},
    });
    expectRefused({
        {"bothLatitude", "lat: 51.4, lat: 0.4"},
        {"oneOnly", "lat: 51.4, 0.4"},
        {"twice", "lat lat 51.4, lon 0.4"},
        {"againstTheLetter", "lat: 51.4 E, lon: 0.4 N"},
        {"alone", "lat: lon:"},
    });
}

TEST(Coordinates, compassWordsOfFourLanguagesAreRead)
{
    expectRead({
        {"english", "51.4775 North, 0.461389 West", heathrow},
        {"german", "51,4775° Nord, 0,461389° West", heathrow},
        {"germanSentence", "51° 28′ 39″ nördlicher Breite, 0° 27′ 41″ westlicher Länge", heathrow},
        {"germanSouthEast", "33,8688° Süd 151,2093° Ost", {-33.8688, 151.2093}},
        {"french", "51,4775° nord, 0,461389° ouest", heathrow},
        {"frenchSentence", "33,8688° de latitude sud, 151,2093° de longitude est", {-33.8688, 151.2093}},
        {"spanish", "51.4775 norte, 0.461389 oeste", heathrow},
        {"spanishSouthEast", "33.8688 Sur 151.2093 Este", {-33.8688, 151.2093}},
        {"before", "Nord 51.4775 West 0.461389", heathrow},
        {"degreesInWords", "51.4775 degrees north, 0.461389 degrees west", heathrow},
    });
}

TEST(Coordinates, theLetterOIsReadInTheUsersLanguageAndNotGuessed)
{
    const Coordinates::Reading east{Coordinate{.latitude = 52.5, .longitude = 13.5}};
    const Coordinates::Reading west{Coordinate{.latitude = 52.5, .longitude = -13.5}};
    EXPECT_EQ(Coordinates::read("52.5 N, 13.5 O", "de_AT"), east);
    EXPECT_EQ(Coordinates::read("N 52,5° O 13,5°", "de"), east);
    EXPECT_EQ(Coordinates::read("52.5 N, 13.5 O", "fr_CA"), west);
    EXPECT_EQ(Coordinates::read("52.5 N, 13.5 o", "es"), west);
    EXPECT_EQ(Coordinates::read("52.5 N, 13.5 O", "nl_NL"), east);
    for (const char* language : {"it", "pt", "pt_BR"})
        EXPECT_EQ(Coordinates::read("52.5 N, 13.5 O", language), west);
    EXPECT_EQ(Coordinates::read("52.5 N, 13.5 O", "sv"), Coordinates::Reading{Problem::eastOrWest});
    EXPECT_EQ(Coordinates::read("52.5 N, 13.5 O"), Coordinates::Reading{Problem::eastOrWest});
    EXPECT_EQ(Coordinates::read("52.5 N, 13.5 Ost"), east);
}

TEST(Coordinates, whatIsNoPositionIsUnreadable)
{
    expectRefused({
        {"nothing", ""},
        {"blanks", "  \t"},
        {"words", "Home"},
        {"oneNumber", "51.4775"},
        {"oneNumberWithDecimalComma", "51,4775 N"},
        {"threeNumbers", "51.4775, -0.46, 25"},
        {"fourNumbers", "51 28 0 27"},
        {"signAlone", "-, -"},
        {"twoSigns", "--51.4775, 0.46"},
        {"signAndLetter", "-33.8 S, 151.2 E"},
        {"letterTwice", "N 51.4 N, 0.4 W"},
        {"bothNorth", "51.4 N, 0.4 N"},
        {"oneLetter", "51.4 N, 0.4"},
        {"letterInTheMiddle", "51 N 28, 0 W 27"},
        {"exponents", "5.1e1, 0"},
        {"infinity", "inf, nan"},
        {"hexadecimal", "0x33, 0"},
        {"pointWithoutDigits", "51., 0"},
        {"twoPoints", "51.4.7, 0"},
        {"secondsBeforeMinutes", "51°39\"28' N, 0° W"},
        {"unitTwice", "51°28'28' N, 0° W"},
        {"minutesWithoutDegrees", "28' N, 27' W"},
        {"fractionAboveMinutes", "51.5°28' N, 0° W"},
        {"marksAlone", "° ' \""},
        {"separatorAlone", ","},
        {"twoSeparators", "51.4,, 0.4"},
        {"brokenText", "51.4\xC2, 0.4\xFF"},
        {"zeroByte", std::string{"51.4, 0.4\0", 10}},
        {"tooLong", "51.4," + std::string(300, ' ') + "0.4"},
    });
}

TEST(Coordinates, aBadGeoUriIsRefused)
{
    expectRefused({
        {"empty", "geo:"},
        {"oneNumber", "geo:51.4"},
        {"fourNumbers", "geo:1,2,3,4"},
        {"notANumber", "geo:51.4,x"},
        {"exponent", "geo:5e1,0"},
        {"infinity", "geo:inf,0"},
        {"otherSystem", "geo:51.4,0.4;crs=moon-2011"},
        {"systemWithATail", "geo:51.4,0.4;crs=wgs84x"},
        {"otherScheme", "geometry:51.4,0.4"},
        {"blankInside", "geo:51.4, 0.4"},
        {"outOfRange", "geo:91,0", Problem::outOfRange},
    });
}

TEST(Coordinates, whatLiesBeyondTheGlobeIsOutOfRange)
{
    expectRefused({
        {"latitude", "90.00001, 0", Problem::outOfRange},
        {"southernLatitude", "-91, 0", Problem::outOfRange},
        {"longitude", "0, 180.5", Problem::outOfRange},
        {"westernLongitude", "0 N, 181 W", Problem::outOfRange},
        {"minutes", "51°60' N, 0° W", Problem::outOfRange},
        {"seconds", "51°28'60\" N, 0° W", Problem::outOfRange},
        {"decimalComma", "91,5 0,5", Problem::outOfRange},
        {"manyDigits", std::string(90, '9') + ", 0", Problem::outOfRange},
    });
}

TEST(Coordinates, aCommaThatCouldBeEitherIsNotGuessed)
{
    EXPECT_EQ(Coordinates::read("51,5° 7"), Coordinates::Reading{Problem::ambiguous});
}

TEST(Coordinates, zeroHasNoSign)
{
    const auto reading = Coordinates::read("-0, -0.0");
    ASSERT_TRUE(std::holds_alternative<Coordinate>(reading));
    EXPECT_FALSE(std::signbit(std::get<Coordinate>(reading).latitude));
    EXPECT_FALSE(std::signbit(std::get<Coordinate>(reading).longitude));
}

TEST(Coordinates, areRoundedToAboutAMetre)
{
    const Coordinate place{.latitude = 38.716667000001, .longitude = -9.1333349};
    EXPECT_EQ(Coordinates::rounded(place), (Coordinate{.latitude = 38.71667, .longitude = -9.13333}));
}

TEST(Coordinates, areWrittenWithoutNeedlessDigits)
{
    EXPECT_EQ(Coordinates::text({.latitude = 51.5, .longitude = -0.12}), "51.5, -0.12");
    EXPECT_EQ(Coordinates::text({.latitude = -90, .longitude = 100}), "-90, 100");
    EXPECT_EQ(Coordinates::text({.latitude = 51.47751234567, .longitude = -0.0000001}), "51.477512, 0");
}

TEST(Coordinates, whatIsWrittenIsReadBack)
{
    for (double latitude = -90; latitude <= 90; latitude += 7.013001) {
        const Coordinate place{.latitude = latitude, .longitude = 2 * latitude};
        const auto reading = Coordinates::read(Coordinates::text(place));
        ASSERT_TRUE(std::holds_alternative<Coordinate>(reading)) << latitude;
        EXPECT_NEAR(std::get<Coordinate>(reading).latitude, place.latitude, 1e-6);
        EXPECT_NEAR(std::get<Coordinate>(reading).longitude, place.longitude, 1e-6);
    }
}

TEST(Coordinates, whateverTheBytesAPositionIsOnTheGlobe)
{
    const std::string alphabet = "0123456789.,;-+ NSEWnsew'\"°′″\xC2\xE2geo:";
    std::mt19937 random{4711};
    std::uniform_int_distribution<std::size_t> letter{0, alphabet.size() - 1};
    std::uniform_int_distribution<std::size_t> length{0, 24};
    int positions = 0;
    for (int round = 0; round < 20000; ++round) {
        std::string text = round % 2 == 0 ? "geo:" : "";
        for (std::size_t left = length(random); left > 0; --left)
            text += alphabet[letter(random)];
        const auto reading = Coordinates::read(text);
        const auto* place = std::get_if<Coordinate>(&reading);
        if (place == nullptr)
            continue;
        ++positions;
        EXPECT_LE(std::abs(place->latitude), 90) << text;
        EXPECT_LE(std::abs(place->longitude), 180) << text;
    }
    EXPECT_GT(positions, 0);
}

} // namespace skyvane
