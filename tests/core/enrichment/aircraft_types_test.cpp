#include "core/enrichment/aircraft_types.h"

#include "tests/core/enrichment/expected_rows.h"
#include "tests/core/enrichment/racing_threads.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace skyvane {
namespace {

using testing::Each;
using testing::MatchesRegex;

TEST(AircraftTypes, theFirstCallsMayRace)
{
    const auto firstLetters = test::race(16, [] {
        const auto found = AircraftTypes::name("b738");
        return found ? found->data() : nullptr;
    });
    EXPECT_THAT(firstLetters, Each(AircraftTypes::table().at("B738").data()));
}

TEST(AircraftTypes, everyDesignatorHasExactlyTheModelOfItsRow)
{
    const auto expected = test::expectedRows("aircraft_types.tsv");
    ASSERT_EQ(expected.size(), 272U);
    EXPECT_EQ(AircraftTypes::table().size(), 272U);
    for (const auto& [designator, model] : expected)
        EXPECT_EQ(AircraftTypes::name(designator), model) << designator;
}

TEST(AircraftTypes, theListKeepsItsOrder)
{
    const auto expected = test::expectedRows("aircraft_types.tsv");
    const auto rows = AircraftTypes::rows();
    ASSERT_EQ(rows.size(), expected.size());
    for (std::size_t index = 0; index < rows.size(); ++index) {
        EXPECT_EQ(rows[index].key, expected[index].first) << index;
        EXPECT_EQ(rows[index].value, expected[index].second) << index;
    }
}

TEST(AircraftTypes, designatorsAreTwoToFourUpperCaseLettersAndDigits)
{
    for (const auto& [designator, model] : AircraftTypes::table()) {
        EXPECT_THAT(designator, MatchesRegex("[A-Z0-9]{2,4}"));
        EXPECT_NE(model, "") << designator;
    }
}

TEST(AircraftTypes, anAbsentDesignatorHasNoName)
{
    EXPECT_EQ(AircraftTypes::name(std::nullopt), std::nullopt);
}

TEST(AircraftTypes, anEmptyDesignatorHasNoName)
{
    EXPECT_EQ(AircraftTypes::name(""), std::nullopt);
}

TEST(AircraftTypes, theDesignatorsCaseDoesNotMatter)
{
    EXPECT_EQ(AircraftTypes::name("b738"), "Boeing 737-800");
    EXPECT_EQ(AircraftTypes::name("B738"), "Boeing 737-800");
    EXPECT_EQ(AircraftTypes::name("a35k"), "Airbus A350-1000");
}

TEST(AircraftTypes, upperCasingKnowsMoreThanASCII)
{
    EXPECT_EQ(AircraftTypes::name("\u017f76"), "Sikorsky S-76");
}

TEST(AircraftTypes, blanksAroundADesignatorAreNotIgnored)
{
    EXPECT_EQ(AircraftTypes::name(" B738"), std::nullopt);
    EXPECT_EQ(AircraftTypes::name("B738 "), std::nullopt);
    EXPECT_EQ(AircraftTypes::name("b738 "), std::nullopt);
    EXPECT_EQ(AircraftTypes::name("\tB738"), std::nullopt);
}

TEST(AircraftTypes, severalDesignatorsShareAModel)
{
    for (const char* designator : {"E175", "E75L", "E75S"})
        EXPECT_EQ(AircraftTypes::name(designator), "Embraer E175") << designator;
    EXPECT_EQ(AircraftTypes::name("E170"), "Embraer E170");
}

TEST(AircraftTypes, shortDesignatorsAreFoundExactly)
{
    EXPECT_EQ(AircraftTypes::name("F50"), "Fokker 50");
    EXPECT_EQ(AircraftTypes::name("J3"), "Piper J-3 Cub");
    EXPECT_EQ(AircraftTypes::name("DC3"), "Douglas DC-3");
    EXPECT_EQ(AircraftTypes::name("P8"), "Boeing P-8 Poseidon");
    EXPECT_EQ(AircraftTypes::name("B06"), "Bell 206 JetRanger");
}

TEST(AircraftTypes, designatorsThatEndInALetterAreFound)
{
    EXPECT_EQ(AircraftTypes::name("A35K"), "Airbus A350-1000");
    EXPECT_EQ(AircraftTypes::name("B3XM"), "Boeing 737 MAX 10");
    EXPECT_EQ(AircraftTypes::name("B78X"), "Boeing 787-10");
}

TEST(AircraftTypes, anUnknownDesignatorHasNoName)
{
    EXPECT_EQ(AircraftTypes::name("ZZZZ"), std::nullopt);
    EXPECT_EQ(AircraftTypes::name("B73"), std::nullopt);
    EXPECT_EQ(AircraftTypes::name("B7388"), std::nullopt);
    EXPECT_EQ(AircraftTypes::name(std::string_view{"B738\0", 5}), std::nullopt);
    EXPECT_EQ(AircraftTypes::name("\xff\xfe"), std::nullopt);
    EXPECT_EQ(AircraftTypes::name(std::string(100'000, 'B')), std::nullopt);
}

} // namespace
} // namespace skyvane
