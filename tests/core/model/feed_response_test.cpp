#include "core/model/fields.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

namespace skyvane {
namespace {

APIResponse decode(const std::string& json)
{
    return JSON::decodeText<APIResponse>(json);
}

/// An answer with one aircraft that has, besides its hex, these members.
Aircraft aircraftWith(const std::string& members)
{
    return decode(R"({"ac":[{"hex":"a1b2c3",)" + members + "}]}").ac.value().front();
}

std::string errorOf(const std::string& json)
{
    try {
        decode(json);
    } catch (const JSON::DecodingError& error) {
        return error.what();
    }
    return "no error";
}

TEST(FeedResponse, groundIsAnAltitudeAndEveryOtherFieldIsAbsent)
{
    const APIResponse response = decode(R"({"ac":[{"hex":"a1b2c3","alt_baro":"ground"}]})");
    EXPECT_EQ(response, (APIResponse{.ac = {{{.hex = "a1b2c3", .altBaro = Altitude::ground()}}}}));
}

TEST(FeedResponse, everyKeyFillsItsField)
{
    const Aircraft aircraft = aircraftWith(
        R"("flight":"UAL1 ","squawk":"1200","emergency":"none","category":"A3","lat":1,"lon":-2.5,"seen":0.5,"track":90,)"
        R"("dbFlags":1,"r":"N1","t":"B738","desc":"BOEING","ownOp":"UNITED","alt_baro":100,"alt_geom":200,"gs":300.5,)"
        R"("baro_rate":-64,"geom_rate":64,"seen_pos":2,"dst":3.5,"dir":4,"nav_modes":["tcas"],"mlat":[])");
    const Aircraft expected{
        .hex = "a1b2c3",
        .flight = "UAL1 ",
        .registration = "N1",
        .typeCode = "B738",
        .typeDescription = "BOEING",
        .operatorName = "UNITED",
        .altBaro = Altitude::feet(100),
        .altGeom = 200,
        .groundSpeed = 300.5,
        .track = 90.0,
        .baroRate = -64,
        .geomRate = 64,
        .squawk = "1200",
        .emergency = "none",
        .category = "A3",
        .lat = 1.0,
        .lon = -2.5,
        .seen = 0.5,
        .seenPos = 2.0,
        .dbFlags = 1,
        .distanceNM = 3.5,
        .directionDeg = 4.0,
    };
    EXPECT_EQ(aircraft, expected);
}

TEST(FeedResponse, aBarometricAltitudeThatIsNoWholeNumberIsTheGround)
{
    for (const char* value : {"1200.7", "\"35000\"", "true", "[1]", "{}", "1e30", "99999999999999999999",
             "9223372036854775808", "18446744073709551616", "-9223372036854775809", "1e999",
             "1200.00000000000000000001", "\"\\ud800\""})
        EXPECT_EQ(aircraftWith(std::string{"\"alt_baro\":"} + value).altBaro, Altitude::ground()) << value;
}

TEST(FeedResponse, aWholeNumberMayBeWrittenAsAFraction)
{
    EXPECT_EQ(aircraftWith(R"("alt_baro":1500.0)").altBaro, Altitude::feet(1500));
    EXPECT_EQ(aircraftWith(R"("alt_geom":1.5e3)").altGeom, 1500);
    EXPECT_EQ(aircraftWith(R"("alt_baro":-9223372036854775808)").altBaro,
        Altitude::feet(std::numeric_limits<std::int64_t>::min()));
}

TEST(FeedResponse, aNullIsAnAbsentField)
{
    EXPECT_FALSE(aircraftWith(R"("alt_baro":null)").altBaro);
    EXPECT_FALSE(aircraftWith(R"("flight":null,"dst":null)").distanceNM);
}

TEST(FeedResponse, aFractionWhereAWholeNumberIsDueFailsTheWholeAnswer)
{
    EXPECT_EQ(errorOf(R"({"ac":[{"hex":"a"},{"hex":"b","alt_geom":1200.7}]})"),
        "ac[1].alt_geom: expected a whole number of 64 bits, found 1200.7");
    for (const char* key : {"alt_geom", "baro_rate", "geom_rate", "dbFlags"}) {
        for (const char* value : {"1500.5", "9223372036854775808", "100000000000000000000", "1e999"}) {
            const std::string json = std::string{R"({"ac":[{"hex":"a",")"} + key + "\":" + value + "}]}";
            EXPECT_THROW(decode(json), JSON::DecodingError) << json;
        }
    }
}

TEST(FeedResponse, aTextWhereANumberIsDueFailsTheWholeAnswer)
{
    EXPECT_EQ(errorOf(R"({"aircraft":[{"hex":"a","lat":"51.5"}]})"),
        R"(aircraft[0].lat: expected a number, found "51.5")");
    EXPECT_EQ(
        errorOf(R"({"ac":[{"hex":"a","squawk":1200}]})"), "ac[0].squawk: expected a string, found 1200");
}

TEST(FeedResponse, anAircraftWithoutHexFailsTheWholeAnswer)
{
    EXPECT_EQ(errorOf(R"({"ac":[{"flight":"UAL1"}]})"), "ac[0].hex: is missing");
    EXPECT_EQ(errorOf(R"({"ac":[{"hex":null}]})"), "ac[0].hex: is missing");
    EXPECT_EQ(errorOf(R"({"ac":[{"hex":7}]})"), "ac[0].hex: expected a string, found 7");
}

TEST(FeedResponse, withoutEitherListBothFieldsAreAbsent)
{
    EXPECT_EQ(decode(R"({"msg":"No error","now":1.5})"), APIResponse{});
    EXPECT_EQ(decode(R"({"ac":null,"aircraft":null})"), APIResponse{});
}

TEST(FeedResponse, bothListsAreReadSideBySide)
{
    const APIResponse response = decode(R"({"ac":[],"aircraft":[{"hex":"b"}]})");
    EXPECT_TRUE(response.ac.value().empty());
    EXPECT_EQ(response.aircraft.value().size(), 1U);
}

TEST(FeedResponse, ofTwoEqualKeysTheFirstCounts)
{
    const APIResponse response = decode(R"({"ac":[{"hex":"a","r":null,"hex":"b","r":"N1"}],"ac":7})");
    EXPECT_EQ(response, (APIResponse{.ac = {{{.hex = "a"}}}}));
}

TEST(FeedResponse, aListThatIsNoListFails)
{
    EXPECT_EQ(errorOf(R"({"ac":{}})"), "ac: expected an array, found an object");
    EXPECT_EQ(errorOf(R"({"ac":[[]]})"), "ac[0]: expected an object, found an array");
    EXPECT_EQ(errorOf("[]"), "expected an object, found an array");
}

TEST(FeedResponse, whatIsNotJSONFails)
{
    for (const char* text :
        {"", "<html>", R"({"ac":[]} trailing)", R"({"ac":[)", "{\"ac\":[{\"hex\":\"\xff\"}]}"})
        EXPECT_EQ(errorOf(text).substr(0, 8), "not JSON") << text;
}

} // namespace
} // namespace skyvane
