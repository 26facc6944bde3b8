#include "core/model/aircraft.h"

#include "platform/pinned.h"
#include "platform/text/locale.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace skyvane {
namespace {

class AircraftTest : public testing::Test {
    Pinned<Locale> m_english{{.numbers = "en_US", .times = "en_US", .timeZone = "UTC"}};
};

using AircraftTexts = AircraftTest;

Aircraft heading(double direction)
{
    return {.hex = "a1b2c3", .distanceNM = 0.0, .directionDeg = direction};
}

TEST_F(AircraftTest, identityIsTheHexAsSent)
{
    EXPECT_EQ((Aircraft{.hex = "~2A4f91"}).id(), "~2A4f91");
}

TEST_F(AircraftTest, equalityComparesEveryFieldAndAbsence)
{
    const Aircraft one{.hex = "a", .track = 0.0};
    EXPECT_EQ(one, (Aircraft{.hex = "a", .track = -0.0}));
    EXPECT_NE(one, (Aircraft{.hex = "a"}));
    EXPECT_NE(one, (Aircraft{.hex = "b", .track = 0.0}));
}

TEST_F(AircraftTexts, displayNameIsTheTrimmedCallsign)
{
    EXPECT_EQ((Aircraft{.hex = "a1", .flight = "\t ASA512  ", .registration = "N1"}).displayName(), "ASA512");
}

TEST_F(AircraftTexts, displayNameOfABlankCallsignIsTheRegistration)
{
    EXPECT_EQ((Aircraft{.hex = "a1", .flight = "        ", .registration = " N1 "}).displayName(), " N1 ");
}

TEST_F(AircraftTexts, displayNameWithoutCallsignAndRegistrationIsTheUpperCasedHex)
{
    EXPECT_EQ((Aircraft{.hex = "a1b2c3", .flight = "        "}).displayName(), "A1B2C3");
    EXPECT_EQ((Aircraft{.hex = "~a1", .flight = "", .registration = ""}).displayName(), "~A1");
}

TEST_F(AircraftTexts, displayNameKeepsLineBreaksAroundTheCallsign)
{
    EXPECT_EQ((Aircraft{.hex = "a1", .flight = "X1\n "}).displayName(), "X1\n");
}

TEST_F(AircraftTest, coordinateNeedsBothLatitudeAndLongitude)
{
    EXPECT_EQ((Aircraft{.hex = "a", .lat = 1.0, .lon = 2.0}).coordinate(),
        (Coordinate{.latitude = 1, .longitude = 2}));
    EXPECT_FALSE((Aircraft{.hex = "a", .lat = 1.0}).coordinate());
    EXPECT_FALSE((Aircraft{.hex = "a", .lon = 2.0}).coordinate());
}

TEST_F(AircraftTest, isOnGroundOnlyWhenTheFeedSaysSo)
{
    EXPECT_TRUE((Aircraft{.hex = "a", .altBaro = Altitude::ground()}).isOnGround());
    EXPECT_FALSE((Aircraft{.hex = "a", .altBaro = Altitude::feet(0)}).isOnGround());
    EXPECT_FALSE((Aircraft{.hex = "a"}).isOnGround());
}

TEST_F(AircraftTest, altitudeFeetOnTheGroundIsTheGeometricOne)
{
    const Aircraft parked{
        .hex = "a", .altBaro = Altitude::ground(), .altGeom = 125, .distanceNM = 2.0, .directionDeg = 45.0};
    EXPECT_TRUE(parked.isOnGround());
    EXPECT_EQ(parked.altitudeText(), "On ground");
    EXPECT_EQ(parked.altitudeFeet(), 125);
    EXPECT_EQ(parked.lookDirection(), "Look NE");
}

TEST_F(AircraftTexts, altitudeTextPrefersTheBarometricAltitude)
{
    EXPECT_EQ((Aircraft{.hex = "a", .altBaro = Altitude::feet(35000), .altGeom = 35500}).altitudeText(),
        "35,000 ft");
    EXPECT_EQ((Aircraft{.hex = "a", .altGeom = 1250}).altitudeText(), "1,250 ft");
    EXPECT_EQ((Aircraft{.hex = "a", .altBaro = Altitude::feet(-75)}).altitudeText(), "-75 ft");
}

TEST_F(AircraftTexts, altitudeTextWithoutAnyAltitudeIsADash)
{
    const Aircraft unknown{.hex = "a"};
    EXPECT_EQ(unknown.altitudeText(), "—");
    EXPECT_FALSE(unknown.altitudeFeet());
}

TEST_F(AircraftTexts, numbersAreGroupedAsTheLocaleDoes)
{
    const Pinned<Locale> german{{.numbers = "de_DE", .times = "de_DE", .timeZone = "UTC"}};
    const Aircraft climbing{
        .hex = "a", .altBaro = Altitude::feet(35000), .baroRate = 1216, .distanceNM = 12.34};
    EXPECT_EQ(climbing.altitudeText(), "35.000 ft");
    EXPECT_EQ(climbing.verticalText(), "↑ 1.216 ft/min");
    EXPECT_EQ(climbing.distanceText("nm", /*compact=*/true), "12.3nm");
}

TEST_F(AircraftTexts, speedTextRoundsHalvesAwayFromZeroAndDoesNotGroup)
{
    EXPECT_EQ((Aircraft{.hex = "a", .groundSpeed = 451.5}).speedText(), "452 kt");
    EXPECT_EQ((Aircraft{.hex = "a", .groundSpeed = 2.5}).speedText(), "3 kt");
    EXPECT_EQ((Aircraft{.hex = "a", .groundSpeed = -0.2}).speedText(), "0 kt");
    EXPECT_EQ((Aircraft{.hex = "a", .groundSpeed = 1234.0}).speedText(), "1234 kt");
    EXPECT_EQ((Aircraft{.hex = "a"}).speedText(), "—");
}

TEST_F(AircraftTexts, verticalTextIsAbsentInLevelFlight)
{
    for (const std::int64_t rate : {-63, 0, 63})
        EXPECT_FALSE((Aircraft{.hex = "a", .baroRate = rate}).verticalText()) << rate;
    EXPECT_FALSE((Aircraft{.hex = "a"}).verticalText());
}

TEST_F(AircraftTexts, verticalTextShowsFrom64FeetAMinute)
{
    EXPECT_EQ((Aircraft{.hex = "a", .baroRate = -64}).verticalText(), "↓ 64 ft/min");
    EXPECT_EQ((Aircraft{.hex = "a", .baroRate = 1216}).verticalText(), "↑ 1,216 ft/min");
}

TEST_F(AircraftTexts, verticalTextSurvivesTheMostNegativeRate)
{
    EXPECT_EQ((Aircraft{.hex = "a", .baroRate = std::numeric_limits<std::int64_t>::min()}).verticalText(),
        "↓ 9,223,372,036,854,775,808 ft/min");
}

TEST_F(AircraftTest, verticalRatePrefersTheBarometricOne)
{
    EXPECT_EQ((Aircraft{.hex = "a", .baroRate = 0, .geomRate = 900}).verticalRate(), 0);
    EXPECT_EQ((Aircraft{.hex = "a", .geomRate = 900}).verticalRate(), 900);
    EXPECT_FALSE((Aircraft{.hex = "a"}).verticalRate());
}

TEST_F(AircraftTest, isEmergencyBySquawkWhateverTheEmergencyWord)
{
    for (const char* squawk : {"7500", "7600", "7700"})
        EXPECT_TRUE((Aircraft{.hex = "a", .squawk = squawk, .emergency = "none"}).isEmergency()) << squawk;
    EXPECT_FALSE((Aircraft{.hex = "a", .squawk = "77000"}).isEmergency());
}

TEST_F(AircraftTest, isEmergencyByAnyWordButNoneTheEmptyOneIncluded)
{
    EXPECT_TRUE((Aircraft{.hex = "a", .emergency = "lifeguard"}).isEmergency());
    EXPECT_TRUE((Aircraft{.hex = "a", .emergency = ""}).isEmergency());
    EXPECT_TRUE((Aircraft{.hex = "a", .emergency = "None"}).isEmergency());
    EXPECT_FALSE((Aircraft{.hex = "a", .squawk = "1200", .emergency = "none"}).isEmergency());
    EXPECT_FALSE((Aircraft{.hex = "a"}).isEmergency());
}

TEST_F(AircraftTest, isMilitaryByTheLowestFlagBit)
{
    EXPECT_FALSE((Aircraft{.hex = "a", .dbFlags = 2}).isMilitary());
    EXPECT_TRUE((Aircraft{.hex = "a", .dbFlags = 3}).isMilitary());
    EXPECT_TRUE((Aircraft{.hex = "a", .dbFlags = -1}).isMilitary());
    EXPECT_FALSE((Aircraft{.hex = "a"}).isMilitary());
}

TEST_F(AircraftTest, isHelicopterByCategoryOrByTypeInAnyCase)
{
    EXPECT_TRUE((Aircraft{.hex = "a", .category = "A7"}).isHelicopter());
    EXPECT_TRUE((Aircraft{.hex = "a", .typeCode = "ec35", .category = "A1"}).isHelicopter());
    EXPECT_FALSE((Aircraft{.hex = "a", .typeCode = "B738", .category = "a7"}).isHelicopter());
    EXPECT_FALSE((Aircraft{.hex = "a"}).isHelicopter());
}

TEST_F(AircraftTest, every27HelicopterTypesAreKnown)
{
    const std::vector<std::string> types{"R22", "R44", "R66", "B06", "B407", "B412", "B429", "B505", "AS50",
        "EC30", "EC35", "EC45", "EC55", "EC75", "A109", "A139", "A169", "S76", "S92", "H60", "MD50", "UH1",
        "H64", "H47", "B212", "B222", "B230"};
    EXPECT_EQ(types.size(), 27U);
    for (const std::string& type : types)
        EXPECT_TRUE((Aircraft{.hex = "a", .typeCode = type}).isHelicopter()) << type;
}

TEST_F(AircraftTest, compassPointsTurnHalfwayBetweenTwo)
{
    EXPECT_EQ(heading(359).lookDirection(), "Look N");
    EXPECT_EQ(heading(11.24).lookDirection(), "Look N");
    EXPECT_EQ(heading(11.25).lookDirection(), "Look NNE");
    EXPECT_EQ(heading(348.74).lookDirection(), "Look NNW");
    EXPECT_EQ(heading(348.75).lookDirection(), "Look N");
}

TEST_F(AircraftTest, compassPointsWrapAboveButNotBelow)
{
    EXPECT_EQ(heading(380).lookDirection(), "Look NNE");
    EXPECT_EQ(heading(-90).lookDirection(), "Look N");
}

TEST_F(AircraftTest, lookDirectionNeedsDirectionAndDistance)
{
    EXPECT_FALSE((Aircraft{.hex = "a", .distanceNM = 1.0}).lookDirection());
    EXPECT_FALSE((Aircraft{.hex = "a", .directionDeg = 1.0}).lookDirection());
}

TEST_F(AircraftTest, lookDirectionNamesTheElevation)
{
    const Aircraft above{
        .hex = "a", .altBaro = Altitude::feet(12500), .distanceNM = 9.7, .directionDeg = 45.0};
    EXPECT_EQ(above.lookDirection(), "Look NE, 12° up");
    const Aircraft below{.hex = "a", .altGeom = -1000, .distanceNM = 1.0, .directionDeg = 45.0};
    EXPECT_EQ(below.lookDirection(), "Look NE, -9° up");
}

TEST_F(AircraftTest, elevationIsRightToTheFoot)
{
    const auto up = [](std::int64_t feet) {
        return Aircraft{.hex = "a", .altGeom = feet, .distanceNM = 1.0, .directionDeg = 0.0}.lookDirection();
    };
    EXPECT_EQ(up(5970), "Look N, 44° up"); // 44.495°
    EXPECT_EQ(up(5971), "Look N, 45° up"); // 44.5001°
}

TEST_F(AircraftTest, lookDirectionAtNoDistanceHasNoElevation)
{
    const Aircraft overhead{
        .hex = "a", .altBaro = Altitude::feet(3000), .distanceNM = 0.0, .directionDeg = 90.0};
    EXPECT_EQ(overhead.lookDirection(), "Look E");
    const Aircraft absurd{
        .hex = "a", .altBaro = Altitude::feet(3000), .distanceNM = -5.0, .directionDeg = 90.0};
    EXPECT_EQ(absurd.lookDirection(), "Look E");
}

TEST_F(AircraftTexts, distanceTextKnowsThreeUnits)
{
    const Aircraft aircraft{.hex = "a", .distanceNM = 12.34};
    EXPECT_EQ(aircraft.distanceText("nm", /*compact=*/false), "12.3 nm");
    EXPECT_EQ(aircraft.distanceText("km", /*compact=*/false), "22.9 km");
    EXPECT_EQ(aircraft.distanceText("mi", /*compact=*/false), "14.2 mi");
    EXPECT_EQ(aircraft.distanceText("nm", /*compact=*/true), "12.3nm");
}

TEST_F(AircraftTexts, distanceTextInAnUnknownUnitIsInStatuteMiles)
{
    const Aircraft aircraft{.hex = "a", .distanceNM = 10.0};
    EXPECT_EQ(aircraft.distanceText("NM", /*compact=*/true), "11.5mi");
    EXPECT_EQ(aircraft.distanceText("", /*compact=*/true), "11.5mi");
    EXPECT_FALSE((Aircraft{.hex = "a"}).distanceText("nm", /*compact=*/true));
}

TEST_F(AircraftTest, distanceMilesAreStatute)
{
    EXPECT_DOUBLE_EQ((Aircraft{.hex = "a", .distanceNM = 2.0}).distanceMiles().value(), 2.30156);
    EXPECT_FALSE((Aircraft{.hex = "a"}).distanceMiles());
}

} // namespace
} // namespace skyvane
