#include "core/model/aircraft.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(AircraftTypeName, comesFromTheDesignatorInAnyCase)
{
    const Aircraft aircraft{.hex = "a", .typeCode = "b738", .typeDescription = "SOMETHING ELSE"};
    EXPECT_EQ(aircraft.typeName(), "Boeing 737-800");
}

TEST(AircraftTypeName, ofAnUnknownDesignatorIsTheFeedsDescriptionCapitalized)
{
    EXPECT_EQ(
        (Aircraft{.hex = "a", .typeCode = "ZZZZ", .typeDescription = "CESSNA 172"}.typeName()), "Cessna 172");
}

TEST(AircraftTypeName, withoutADesignatorIsTheFeedsDescriptionCapitalized)
{
    EXPECT_EQ((Aircraft{.hex = "a", .typeDescription = "BOEING 737-800"}.typeName()), "Boeing 737-800");
}

TEST(AircraftTypeName, andTheOperatorsKeepTheCapitalsOfAnAbbreviation)
{
    const Aircraft aircraft{.hex = "a", .typeDescription = "D.H.C. BEAVER", .operatorName = "U.S. AIR FORCE"};
    EXPECT_EQ(aircraft.typeName(), "D.H.C. Beaver");
    EXPECT_EQ(aircraft.operatorDisplayName(), "U.S. Air Force");
}

TEST(AircraftTypeName, isAbsentWhenNeitherSaysAnything)
{
    EXPECT_EQ((Aircraft{.hex = "a"}.typeName()), std::nullopt);
    EXPECT_EQ((Aircraft{.hex = "a", .typeCode = "ZZZZ"}.typeName()), std::nullopt);
    EXPECT_EQ((Aircraft{.hex = "a", .typeCode = "ZZZZ", .typeDescription = ""}.typeName()), std::nullopt);
}

TEST(AircraftTypeName, doesNotTrimTheDesignator)
{
    EXPECT_EQ((Aircraft{.hex = "a", .typeCode = "B738 ", .typeDescription = "A JET"}.typeName()), "A Jet");
}

TEST(AircraftTypeName, aBlankDescriptionIsADescription)
{
    EXPECT_EQ((Aircraft{.hex = "a", .typeDescription = " "}.typeName()), " ");
}

TEST(AircraftOperatorDisplayName, isTheFeedsOwnBeforeAnyTable)
{
    const Aircraft aircraft{.hex = "a", .flight = "BAW1", .operatorName = "UNITED AIRLINES INC"};
    EXPECT_EQ(aircraft.operatorDisplayName(), "United Airlines Inc");
}

TEST(AircraftOperatorDisplayName, ofAnEmptyOperatorComesFromTheCallsign)
{
    EXPECT_EQ((Aircraft{.hex = "a", .flight = "UAL123  ", .operatorName = ""}.operatorDisplayName()),
        "United Airlines");
    EXPECT_EQ((Aircraft{.hex = "a", .flight = " amx402"}.operatorDisplayName()), "Aerom\u00e9xico");
}

TEST(AircraftOperatorDisplayName, isAbsentForARegistrationUsedAsCallsign)
{
    EXPECT_EQ((Aircraft{.hex = "a", .flight = "N123AB"}.operatorDisplayName()), std::nullopt);
}

TEST(AircraftOperatorDisplayName, isAbsentWhenNothingNamesIt)
{
    EXPECT_EQ((Aircraft{.hex = "a"}.operatorDisplayName()), std::nullopt);
    EXPECT_EQ((Aircraft{.hex = "a", .flight = "ABC123"}.operatorDisplayName()), std::nullopt);
    EXPECT_EQ((Aircraft{.hex = "a", .flight = "", .operatorName = ""}.operatorDisplayName()), std::nullopt);
}

} // namespace
} // namespace skyvane
