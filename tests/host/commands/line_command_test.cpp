#include "host/commands/run_command.h"
#include "host/commands/turn_to_ask.h"
#include "tests/host/extension/fake_extension.h"

#include <gmock/gmock.h>

#include <chrono>
#include <filesystem>
#include <sstream>

namespace skyvane {

namespace {

using testing::HasSubstr;
using testing::StartsWith;

struct LineOutcome {
    int status;
    std::string out;
    std::string error;
};

LineOutcome line(const test::FakeExtension& extension, std::vector<std::string> options = {})
{
    std::ostringstream out;
    std::ostringstream error;
    options.insert(options.begin(), "line");
    const int status = runCommand(options, extension.program(), {.out = out, .error = error});
    return {.status = status, .out = out.str(), .error = error.str()};
}

} // namespace

TEST(LineCommand, aQuietSkyAndAMissingHomeAreSaidInTheWidgetsWords)
{
    EXPECT_EQ(line(test::FakeExtension{"quiet"}).out, "Quiet skies\n");
    EXPECT_EQ(line(test::FakeExtension{"homeless"}).out, "Choose a home\n");
    EXPECT_EQ(line(test::FakeExtension{"quiet"}, {"--format", "near: {callsign}"}).out, "Quiet skies\n");
}

TEST(LineCommand, inJSONEachHasAClass)
{
    EXPECT_EQ(line(test::FakeExtension{"quiet"}, {"--json"}).out,
        R"({"text":"Quiet skies","tooltip":"Quiet skies","class":"quiet"})"
        "\n");
    EXPECT_THAT(line(test::FakeExtension{"homeless"}, {"--json"}).out, HasSubstr(R"("class":"no-home")"));
}

TEST(LineCommand, aFailureIsALineForTheBarAndOneForWhoeverLooks)
{
    for (const char* behaviour : {"refusing", "crashing", "ending", "silent", "babbling", "empty",
             "half-empty", "sparing", "good", "huge"}) {
        const LineOutcome outcome = line(test::FakeExtension{behaviour});
        EXPECT_EQ(outcome.status, 1) << behaviour;
        EXPECT_EQ(outcome.out, "No answer\n") << behaviour;
        EXPECT_THAT(outcome.error, StartsWith("skyvane-host: the widget extension")) << behaviour;
    }
    EXPECT_THAT(line(test::FakeExtension{"crashing"}, {"--json"}).out,
        R"({"text":"No answer","tooltip":"the widget extension crashed","class":"failure"})"
        "\n");
}

TEST(LineCommand, itAsksTheSourcesOnceForAllItShows)
{
    const test::FakeExtension extension{"quiet"};
    line(extension);
    EXPECT_EQ(extension.events("widgets.timelines").size(), 1U);
    EXPECT_EQ(extension.events("jsonrpc").size(), 1U);
}

TEST(LineCommand, aSampleAsksTheSourcesNothing)
{
    const test::FakeExtension extension{"quiet"};
    EXPECT_EQ(line(extension, {"--sample"}).status, 0);
    EXPECT_EQ(extension.events("widgets.timelines").size(), 0U);
    EXPECT_EQ(extension.events("isPreview").size(), 2U);
}

TEST(LineCommand, aFormatThatMakesNoSenseStartsNothing)
{
    const test::FakeExtension extension{"quiet"};
    const LineOutcome outcome = line(extension, {"--format", "{hexx}"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.error, StartsWith("skyvane-host: unknown placeholder \"hexx\": known are callsign"));
    EXPECT_EQ(outcome.out, "");
    EXPECT_TRUE(extension.events("start").empty());
}

TEST(TurnToAsk, isFreeAtOnceWhereNobodyAskedAndFiveSecondsAfterTheLast)
{
    using namespace std::chrono_literals;
    const test::ScratchFolder folder;
    const auto file = folder.path() / "turn";
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_TRUE(turnToAsk(file));
    EXPECT_FALSE(SharedTurn::take(file, 5s));
    std::filesystem::last_write_time(file, std::filesystem::file_time_type::clock::now() - 4700ms);
    EXPECT_TRUE(turnToAsk(file));
    const auto waited = std::chrono::steady_clock::now() - begin;
    EXPECT_GE(waited, 200ms);
    EXPECT_LT(waited, 4s);
}

} // namespace skyvane
