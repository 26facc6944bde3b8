#include "companion/links/incoming_link.h"

#include <gtest/gtest.h>

#include <set>

namespace skyvane {

namespace {

using IncomingLink::OneAircraft;
using IncomingLink::Problem;
using IncomingLink::read;
using IncomingLink::Sky;
using IncomingLink::Target;

} // namespace

TEST(IncomingLink, theSkyIsRead)
{
    for (const char* text : {"skyvane://open", "skyvane://open/", "SKYVANE://Open"})
        EXPECT_EQ(read(text), Target{Sky{}}) << text;
}

TEST(IncomingLink, anAircraftIsReadAsItIsWritten)
{
    for (const char* hex : {"a", "A1b2C3", "~2a41b6", "01234567"})
        EXPECT_EQ(read(std::string{"skyvane://aircraft/"} + hex), Target{OneAircraft{.hex = hex}}) << hex;
    EXPECT_EQ(read("skyvane://aircraft/abc123/"), Target{OneAircraft{.hex = "abc123"}});
}

TEST(IncomingLink, whatLeadsNowhereSaysWhy)
{
    const struct {
        std::string text;
        Problem problem;
    } rows[]{
        {"", Problem::foreign},
        {"skyvane", Problem::foreign},
        {"skyvane:open", Problem::foreign},
        {"https://open", Problem::foreign},
        {"skyvane://", Problem::nowhere},
        {"skyvane:///", Problem::nowhere},
        {"skyvane://settings", Problem::unknownPlace},
        {"skyvane://opening", Problem::unknownPlace},
        {"skyvane://open?x=1", Problem::unknownPlace},
        {"skyvane://open//", Problem::unknownPlace},
        {"skyvane://aircrafts/abc", Problem::unknownPlace},
        {"skyvane://aircraftopen", Problem::unknownPlace},
        {"skyvane://aircraft", Problem::noAircraft},
        {"skyvane://aircraft/", Problem::noAircraft},
        {"skyvane://aircraft/~", Problem::noAddress},
        {"skyvane://aircraft/a~1", Problem::noAddress},
        {"skyvane://aircraft/xyz", Problem::noAddress},
        {"skyvane://aircraft/123456789", Problem::noAddress},
        {"skyvane://aircraft/abc123/../../open", Problem::noAddress},
        {"skyvane://aircraft/" + std::string(2048, 'a'), Problem::tooLong},
        {"skyvane://aircraft/abc\n123", Problem::unprintable},
        {"skyvane://aircraft/abc 123", Problem::unprintable},
        {"skyvane://aircraft/äbc", Problem::unprintable},
        {std::string{"skyvane://open\0", 15}, Problem::unprintable},
        {"\xff\xfe", Problem::unprintable},
    };
    for (const auto& [text, problem] : rows)
        EXPECT_EQ(read(text), Target{problem}) << text;
}

TEST(IncomingLink, everyProblemHasItsOwnWords)
{
    std::set<std::string> words;
    for (const Problem problem : {Problem::foreign, Problem::nowhere, Problem::unknownPlace,
             Problem::noAircraft, Problem::noAddress, Problem::tooLong, Problem::unprintable})
        words.insert(IncomingLink::description(problem));
    EXPECT_EQ(words.size(), 7U);
    EXPECT_FALSE(words.contains(""));
}

} // namespace skyvane
