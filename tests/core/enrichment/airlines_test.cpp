#include "core/enrichment/airlines.h"

#include "platform/text/unicode.h"
#include "tests/core/enrichment/expected_rows.h"
#include "tests/core/enrichment/racing_threads.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <string>

namespace skyvane {
namespace {

using Airlines::isAirlineCallsign;
using testing::Each;

/// The rule as it is told, with the Unicode library at every step and no short cut.
std::optional<std::string> designatorByUnicode(std::string_view callsign)
{
    const std::string text = Unicode::uppercased(Unicode::trimmed(callsign));
    const auto characters = Unicode::characters(text);
    if (characters.size() < 4)
        return std::nullopt;
    for (std::size_t index = 0; index < 3; ++index) {
        if (!Unicode::isLetter(characters[index]))
            return std::nullopt;
    }
    if (!Unicode::isNumber(characters[3]))
        return std::nullopt;
    return std::string{characters[0]}.append(characters[1]).append(characters[2]);
}

void expectTheUnicodeRule(const std::string& callsign)
{
    const auto designator = designatorByUnicode(callsign);
    EXPECT_EQ(isAirlineCallsign(callsign), designator.has_value()) << testing::PrintToString(callsign);
    std::optional<std::string_view> expected;
    if (designator && Airlines::table().contains(*designator))
        expected = Airlines::table().at(*designator);
    EXPECT_EQ(Airlines::name(callsign), expected) << testing::PrintToString(callsign);
}

TEST(Airlines, theFirstCallsMayRace)
{
    const auto firstLetters = test::race(16, [] {
        const auto found = Airlines::name("UAL123");
        return found ? found->data() : nullptr;
    });
    EXPECT_THAT(firstLetters, Each(Airlines::table().at("UAL").data()));
}

TEST(Airlines, everyDesignatorHasExactlyTheNameOfItsRow)
{
    const auto expected = test::expectedRows("airlines.tsv");
    ASSERT_EQ(expected.size(), 92U);
    EXPECT_EQ(Airlines::table().size(), 92U);
    for (const auto& [designator, airline] : expected) {
        EXPECT_EQ(Airlines::table().at(designator), airline) << designator;
        if (designator != "N") {
            EXPECT_EQ(Airlines::name(designator + "1"), airline) << designator;
        }
    }
}

TEST(Airlines, theListKeepsItsOrder)
{
    const auto expected = test::expectedRows("airlines.tsv");
    const auto rows = Airlines::rows();
    ASSERT_EQ(rows.size(), expected.size());
    for (std::size_t index = 0; index < rows.size(); ++index) {
        EXPECT_EQ(rows[index].key, expected[index].first) << index;
        EXPECT_EQ(rows[index].value, expected[index].second) << index;
    }
}

TEST(Airlines, anAbsentCallsignIsNoAirlines)
{
    EXPECT_FALSE(isAirlineCallsign(std::nullopt));
    EXPECT_EQ(Airlines::name(std::nullopt), std::nullopt);
}

TEST(Airlines, anEmptyOrBlankCallsignIsNoAirlines)
{
    for (const char* callsign : {"", " ", "        ", "\t", "\u00a0\u2003"}) {
        EXPECT_FALSE(isAirlineCallsign(callsign)) << callsign;
        EXPECT_EQ(Airlines::name(callsign), std::nullopt) << callsign;
    }
}

TEST(Airlines, caseAndBlanksAroundACallsignDoNotMatter)
{
    for (const char* callsign : {"  ual123 ", "\tUal123", "\u00a0uAL123\u3000"}) {
        EXPECT_TRUE(isAirlineCallsign(callsign)) << callsign;
        EXPECT_EQ(Airlines::name(callsign), "United Airlines") << callsign;
    }
}

TEST(Airlines, lineBreaksAroundACallsignDoMatter)
{
    EXPECT_FALSE(isAirlineCallsign("\nUAL123"));
    EXPECT_FALSE(isAirlineCallsign("\r\nUAL123"));
    EXPECT_TRUE(isAirlineCallsign("UAL123\n"));
}

TEST(Airlines, fourCharactersAreEnoughAndThreeAreNot)
{
    EXPECT_EQ(Airlines::name("SWA1"), "Southwest Airlines");
    EXPECT_FALSE(isAirlineCallsign("SWA"));
    EXPECT_EQ(Airlines::name("SWA"), std::nullopt);
    EXPECT_FALSE(isAirlineCallsign("SWA "));
    EXPECT_FALSE(isAirlineCallsign(std::string_view{"SWA1"}.substr(0, 3)));
}

TEST(Airlines, aRegistrationUsedAsCallsignIsNoAirlinesAndNeverPrivate)
{
    EXPECT_FALSE(isAirlineCallsign("N123AB"));
    EXPECT_EQ(Airlines::name("N123AB"), std::nullopt);
    EXPECT_EQ(Airlines::name("N1"), std::nullopt);
    EXPECT_EQ(Airlines::name("N  1"), std::nullopt);
    EXPECT_EQ(Airlines::table().at("N"), "Private");
}

TEST(Airlines, lettersComeFirstAndANumberFourth)
{
    EXPECT_TRUE(isAirlineCallsign("UAL1ABC"));
    EXPECT_TRUE(isAirlineCallsign("DAL9"));
    EXPECT_FALSE(isAirlineCallsign("UA123"));
    EXPECT_FALSE(isAirlineCallsign("U2AB1"));
    EXPECT_FALSE(isAirlineCallsign("UALX1"));
    EXPECT_FALSE(isAirlineCallsign("UAL 1"));
    EXPECT_FALSE(isAirlineCallsign("1UAL1"));
}

TEST(Airlines, nothingAfterTheNumberIsLookedAt)
{
    EXPECT_EQ(Airlines::name("UAL1 \n\u00e9 anything"), "United Airlines");
}

TEST(Airlines, twoDesignatorsShareAName)
{
    EXPECT_EQ(Airlines::name("JIA5432"), "PSA Airlines");
    EXPECT_EQ(Airlines::name("PSA5432"), "PSA Airlines");
}

TEST(Airlines, anUnknownAirlineHasNoName)
{
    EXPECT_TRUE(isAirlineCallsign("ABC123"));
    EXPECT_EQ(Airlines::name("ABC123"), std::nullopt);
}

TEST(Airlines, militaryOperatorsAreNamed)
{
    EXPECT_EQ(Airlines::name("RCH401"), "US Air Mobility Command");
    EXPECT_EQ(Airlines::name("GAF123"), "German Air Force");
    EXPECT_EQ(Airlines::name("CFC1"), "Canadian Forces");
}

TEST(Airlines, anAccentedLetterOfANameStaysIntact)
{
    EXPECT_EQ(Airlines::name("AMX402"), "Aerom\u00e9xico");
}

TEST(Airlines, lettersAndNumbersOfEveryScriptCount)
{
    EXPECT_TRUE(isAirlineCallsign("\u00c9\u00c4\u03a9"
                                  "1"));
    EXPECT_TRUE(isAirlineCallsign("E\u0301AL1"));
    EXPECT_EQ(Airlines::name("UA\u0301L1"), std::nullopt);
    EXPECT_EQ(Airlines::name("UAL\u0661"), "United Airlines");
    EXPECT_EQ(Airlines::name("UAL\u00bd"), "United Airlines");
    EXPECT_EQ(Airlines::name("ual1\u0301"), "United Airlines");
    EXPECT_FALSE(isAirlineCallsign("UA\u20ac1"));
}

TEST(Airlines, charactersAreCountedAfterUpperCasing)
{
    EXPECT_TRUE(isAirlineCallsign("\u00df"
                                  "A1"));
    EXPECT_EQ(Airlines::name("a\u00df7"), std::nullopt);
    EXPECT_TRUE(isAirlineCallsign("a\u00df7"));
}

TEST(Airlines, aFamilyOfSymbolsIsOneCharacterAndNoLetter)
{
    EXPECT_FALSE(isAirlineCallsign("\U0001F468\u200d\U0001F469\u200d\U0001F467"
                                   "1"));
    EXPECT_FALSE(isAirlineCallsign("\xff\xfe\xfd"
                                   "1"));
}

TEST(Airlines, theShortCutForASCIIAgreesWithTheUnicodeRule)
{
    std::mt19937 random{11};
    const std::string usual = "UALual \t019\r\n";
    for (int turn = 0; turn < 20'000; ++turn) {
        std::string callsign(random() % 8, ' ');
        for (char& character : callsign) {
            character
                = random() % 4 == 0 ? static_cast<char>(random() % 128) : usual[random() % usual.size()];
        }
        expectTheUnicodeRule(callsign);
    }
}

TEST(Airlines, everyFourthCharacterOfASCIIFollowsTheUnicodeRule)
{
    for (int code = 0; code < 128; ++code) {
        const std::string character(1, static_cast<char>(code));
        expectTheUnicodeRule("UAL" + character);
        expectTheUnicodeRule(std::string{"UA1"}.insert(2, character));
        expectTheUnicodeRule(character + "UAL1");
    }
}

} // namespace
} // namespace skyvane
