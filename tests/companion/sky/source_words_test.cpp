#include "companion/sky/sky_words.h"
#include "companion/sky/source_words.h"
#include "core/config/shared_state.h"

#include <gtest/gtest.h>

namespace skyvane {

namespace {

SkyReport askedInVain(const FetchCause& first, const FetchCause& second)
{
    const SharedState::Config config{
        .home = {.latitude = 51.5, .longitude = -0.12, .label = "Home"}, .radiusNM = 25};
    return {
        .entry = SkyEntry::around(config),
        .problem = "opendata.adsb.fi returned an error",
        .asked
        = {{.source = "api.adsb.lol", .problem = first}, {.source = "opendata.adsb.fi", .problem = second}},
    };
}

FetchCause status(int code)
{
    return {.problem = FetchProblem::status, .status = code};
}

FetchCause transfer(TransferProblem problem)
{
    return {.problem = FetchProblem::transfer, .transfer = problem};
}

std::string firstLine(const FetchCause& cause)
{
    return SourceWords::reasons(askedInVain(cause, status(500)))
        .section(QLatin1Char{'\n'}, 0, 0)
        .toStdString();
}

} // namespace

TEST(SourceWords, everyReasonIsASentence)
{
    const struct {
        const char* name;
        FetchCause cause;
        std::string words;
    } rows[]{
        {"forbidden", status(403), "adsb.lol refuses to answer (403)."},
        {"too many", status(429), "adsb.lol asks for patience: too many questions (429)."},
        {"broken", status(503), "adsb.lol is out of order (503)."},
        {"lost", status(404), "adsb.lol answers with an error (404)."},
        {"captive portal", {.problem = FetchProblem::notJSON},
            "adsb.lol: something else answers in its place. Does this network want you to log in first?"},
        {"another shape", {.problem = FetchProblem::shape}, "adsb.lol: The answer is not what was expected."},
        {"slow", transfer(TransferProblem::timedOut), "adsb.lol: The server did not answer in time."},
        {"unforeseen", {.problem = FetchProblem::other}, "adsb.lol: The request failed."},
    };
    for (const auto& [name, cause, words] : rows)
        EXPECT_EQ(firstLine(cause), words) << name;
}

TEST(SourceWords, aMachineWithoutANetworkIsSaidToBeOffLine)
{
    const FetchCause unknown = transfer(TransferProblem::nameUnknown);
    EXPECT_EQ(SkyWords::instead(askedInVain(unknown, transfer(TransferProblem::noRoute)))->title, "Off line");
    EXPECT_EQ(SkyWords::instead(askedInVain(unknown, status(403)))->title, "No answer");
}

TEST(SourceWords, withoutASourceTheProblemIsSaidAsItIs)
{
    EXPECT_EQ(SourceWords::reasons(
                  {.entry = SkyEntry::around(std::nullopt), .problem = "No flight data source reachable"}),
        "No flight data source reachable");
}

} // namespace skyvane
