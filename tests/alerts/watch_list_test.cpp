#include "alerts/watch_list.h"

#include <gtest/gtest.h>

#include <chrono>

namespace skyvane {

namespace {

const Aircraft jumbo{.hex = "4007f0", .flight = "BAW117  ", .registration = "G-CIVW", .typeCode = "B744"};

bool isNamed(const std::string& pattern, const Aircraft& aircraft = jumbo)
{
    return WatchList{{pattern}}.names(aircraft);
}

} // namespace

TEST(WatchListTest, namesByCallsignRegistrationTypeOrAddress)
{
    for (const char* pattern : {"BAW117", "G-CIVW", "B744", "4007f0"})
        EXPECT_TRUE(isNamed(pattern)) << pattern;
    for (const char* pattern : {"BAW11", "AW117", "G-CIV", "B74", "Boeing"})
        EXPECT_FALSE(isNamed(pattern)) << pattern;
}

TEST(WatchListTest, hasNoRegardToCaseNorToBlanksAtTheEnds)
{
    for (const char* pattern : {"baw117", " g-civw ", "b744\t", "4007F0"})
        EXPECT_TRUE(isNamed(pattern)) << pattern;
    EXPECT_TRUE(isNamed("müller1", {.hex = "a", .flight = "MÜLLER1"}));
}

TEST(WatchListTest, aStarStandsForAnyCharacters)
{
    for (const char* pattern :
        {"BAW*", "*117", "B*7", "*", "**", "BAW117*", "*BAW117", "g-c*w", "*A*1*", "4007*"})
        EXPECT_TRUE(isNamed(pattern)) << pattern;
    for (const char* pattern : {"BAW*8", "*W118", "C*", "B*1*1*1*1", "*x*"})
        EXPECT_FALSE(isNamed(pattern)) << pattern;
}

TEST(WatchListTest, anEmptyPatternIsNobodys)
{
    EXPECT_FALSE(isNamed(""));
    EXPECT_FALSE(isNamed("  "));
    EXPECT_FALSE(isNamed("", {.hex = "", .flight = "   "}));
    EXPECT_TRUE(WatchList{{}}.isEmpty());
    EXPECT_TRUE((WatchList{{"", " "}}.isEmpty()));
}

TEST(WatchListTest, aStarNamesNobodyWithoutAName)
{
    EXPECT_FALSE(isNamed("*", {.hex = "", .flight = "   "}));
}

TEST(WatchListTest, textsThatAreNoNamesAreNotCompared)
{
    const Aircraft absurd{.hex = "a", .flight = std::string(10'000, 'A')};
    EXPECT_FALSE(isNamed("AAAA*", absurd));
}

TEST(WatchListTest, aPatternOfStarsAndAHostileSkyTakeNoTime)
{
    std::string pattern;
    while (pattern.size() < 60'000)
        pattern += "a*";
    const WatchList list{{pattern + "b"}};
    const Aircraft stubborn{.hex = std::string(64, 'a'), .flight = std::string(64, 'a')};
    const auto start = std::chrono::steady_clock::now();
    for (int index = 0; index < 1'000; ++index)
        EXPECT_FALSE(list.names(stubborn));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds{10});
}

} // namespace skyvane
