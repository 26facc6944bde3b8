#include "tests/widgets/extension/scenario.h"

#include <chrono>
#include <set>
#include <string>

namespace skyvane::test {

namespace {

using namespace std::chrono_literals;

const char* const oneElsewhere
    = R"({"now": 1, "aircraft": [{"hex": "def001", "lat": 51.6, "lon": -0.1, "dst": 3}]})";

} // namespace

TEST_F(ExtensionScenario, aTimelineShowsWhatTheFirstSourceSees)
{
    setHome();
    stage.server().answer(firstSource, {.body = twoNearHome});
    stage.ask(1, "widgets.timeline", radar);
    const json answer = stage.hear();
    EXPECT_EQ(shownIn(answer), (std::set<std::string>{"abc001", "abc002"}));
    const json& entry = answer["result"]["entries"][0];
    EXPECT_EQ(entry["isSample"], false);
    EXPECT_EQ(entry["background"].size(), 4U);
    EXPECT_EQ(answer["result"]["reload"]["policy"], "after");
    EXPECT_NEAR(answer["result"]["reload"]["date"].get<double>() - entry["date"].get<double>(), 300, 1);
    ASSERT_EQ(stage.server().requests().size(), 1U);
    EXPECT_EQ(stage.server().requests()[0].target, "/v2/point/51.50000/-0.12000/25");
    EXPECT_EQ(stage.server().requests()[0].header("Host"), "api.adsb.lol");
    EXPECT_EQ(stage.server().connectionCount(), 1U);
}

TEST_F(ExtensionScenario, severalTimelinesAreOfOneSkyAndOneRequest)
{
    setHome();
    stage.server().answer(firstSource, {.body = twoNearHome});
    stage.ask(1, "widgets.timelines", {{"widgets", allThree}, {"later", "passed over"}});
    const json answer = stage.hear();
    const json& timelines = answer["result"]["timelines"];
    ASSERT_EQ(timelines.size(), 3U) << answer;
    EXPECT_EQ(shownInTimeline(timelines[1]), (std::set<std::string>{"abc001", "abc002"}));
    EXPECT_EQ(shownInTimeline(timelines[2]), (std::set<std::string>{"abc001", "abc002"}));
    EXPECT_EQ(timelines[0]["entries"][0]["url"], "skyvane://aircraft/abc002");
    for (const json& timeline : timelines) {
        EXPECT_EQ(timeline["entries"][0]["date"], timelines[0]["entries"][0]["date"]);
        EXPECT_EQ(timeline["reload"], timelines[0]["reload"]);
    }
    EXPECT_EQ(stage.server().requests().size(), 1U);
    EXPECT_EQ(answer["result"].size(), 1U);
}

TEST_F(ExtensionScenario, alertsAreOfTheSameSkyAndTheSameRequest)
{
    setHome();
    stage.server().answer(firstSource, {.body = twoNearHome});
    stage.ask(1, "widgets.timelines", {{"widgets", allThree}, {"alerts", {{"watch", {"near*"}}}}});
    const json result = stage.hear()["result"];
    ASSERT_EQ(result["alerts"].size(), 1U) << result;
    const json& alert = result["alerts"][0];
    EXPECT_EQ(alert["id"], "watch/abc002");
    EXPECT_EQ(alert["at"], result["timelines"][0]["entries"][0]["date"]);
    EXPECT_EQ(alert["title"], "On your watch list");
    EXPECT_EQ(alert["body"], "NEAR1 is in range. It is 1.7 mi away, in the east.");
    EXPECT_EQ(alert["url"], "skyvane://aircraft/abc002");
    EXPECT_EQ(stage.server().requests().size(), 1U);
}

TEST_F(ExtensionScenario, withNothingToTellTheListOfAlertsIsEmpty)
{
    setHome();
    stage.server().answer(firstSource, {.body = twoNearHome});
    stage.ask(1, "widgets.timelines", {{"widgets", allThree}, {"alerts", json::object()}});
    const json result = stage.hear()["result"];
    EXPECT_EQ(result["alerts"], json::array()) << result;
    EXPECT_EQ(result["timelines"].size(), 3U);
}

TEST_F(ExtensionScenario, severalTimelinesWithoutASkyAreOneAskingOfBothSources)
{
    setHome();
    stage.server().answer("/", {.status = 500});
    stage.ask(1, "widgets.timelines", {{"widgets", allThree}});
    const json answer = stage.hear();
    ASSERT_EQ(answer["result"]["timelines"].size(), 3U) << answer;
    for (const json& timeline : answer["result"]["timelines"])
        EXPECT_EQ(shownInTimeline(timeline), std::set<std::string>{});
    EXPECT_EQ(stage.server().requests().size(), 2U);
}

TEST_F(ExtensionScenario, theListMayHaveEitherName)
{
    setHome();
    stage.server().answer(firstSource, {.body = oneElsewhere});
    EXPECT_EQ(timeline(), std::set<std::string>{"def001"});
    EXPECT_EQ(stage.server().requests().size(), 1U);
}

TEST_F(ExtensionScenario, theSecondSourceIsAskedWhenTheFirstSeesNothing)
{
    setHome();
    stage.server().answer(firstSource, {.body = R"({"ac": []})"});
    stage.server().answer(secondSource, {.body = oneElsewhere});
    EXPECT_EQ(timeline(), std::set<std::string>{"def001"});
    ASSERT_EQ(stage.server().requests().size(), 2U);
    EXPECT_EQ(stage.server().requests()[1].target, "/api/v2/lat/51.50000/lon/-0.12000/dist/25");
    EXPECT_EQ(stage.server().requests()[1].header("Host"), "opendata.adsb.fi");
}

TEST_F(ExtensionScenario, theSecondSourceStandsInForOneThatFails)
{
    setHome();
    stage.server().answer(secondSource, {.body = oneElsewhere});
    const std::string oneBad
        = R"({"ac": [{"hex": "abc001", "lat": 51, "lon": 0}, {"flight": "NOHEX"}, {"hex": "abc003"}]})";
    stage.server().answer(firstSource, {.status = 503, .body = twoNearHome});
    EXPECT_EQ(timeline(), std::set<std::string>{"def001"});
    stage.server().answer(firstSource, {.body = "<html>Down for maintenance</html>"});
    EXPECT_EQ(timeline(), std::set<std::string>{"def001"});
    stage.server().answer(firstSource, {.body = oneBad});
    EXPECT_EQ(timeline(), std::set<std::string>{"def001"});
    stage.server().handle(firstSource, [](const auto&, Connection& connection) {
        connection.send(head({.headers = {{.name = "Content-Length", .value = "10000"}}}) + twoNearHome);
        connection.close();
    });
    EXPECT_EQ(timeline(), std::set<std::string>{"def001"});
    stage.server().handle(firstSource, [](const auto&, Connection& connection) { connection.reset(); });
    EXPECT_EQ(timeline(), std::set<std::string>{"def001"});
}

TEST_F(ExtensionScenario, oneAbsurdRecordCostsTheOthersNothing)
{
    setHome();
    const std::string absurd(300'000, 'x');
    stage.server().answer(firstSource,
        {.body = R"({"ac": [{"hex": "abc001", "lat": 51.6, "lon": -0.1, "dst": 2},
            {"hex": "abc002", "flight": ")"
                + absurd + R"(", "r": ")" + absurd + R"(", "lat": 51.5, "lon": -0.1, "dst": 1}]})"});
    EXPECT_EQ(timeline(), (std::set<std::string>{"abc001", "abc002"}));
}

TEST_F(ExtensionScenario, aSourceThatNeverAnswersCostsEightSeconds)
{
    setHome();
    stage.server().handle(firstSource, &stalled);
    stage.server().answer(secondSource, {.body = oneElsewhere});
    EXPECT_EQ(timeline(), std::set<std::string>{"def001"});
    const auto requests = stage.server().requests();
    ASSERT_EQ(requests.size(), 2U);
    EXPECT_GE(requests[1].arrival - requests[0].arrival, 7800ms);
    EXPECT_LT(requests[1].arrival - requests[0].arrival, 8500ms);
}

TEST_F(ExtensionScenario, twoFailuresAreAnEmptySky)
{
    setHome();
    stage.server().answer("/", {.status = 500});
    EXPECT_EQ(timeline(), std::set<std::string>{});
    EXPECT_EQ(stage.server().requests().size(), 2U);
}

TEST_F(ExtensionScenario, aSourceWithAStrangersCertificateIsNotBelieved)
{
    setHome();
    stage.server().answer(firstSource, {.body = twoNearHome});
    stage.server().answer(secondSource, {.body = oneElsewhere});
    stage.server().present("api.adsb.lol", CertificateAuthority::selfSigned({"api.adsb.lol"}));
    EXPECT_EQ(timeline(), std::set<std::string>{"def001"});
}

TEST_F(ExtensionScenario, withoutAHomeNobodyIsAsked)
{
    for (const char* configuration : {"", "{", R"({"radiusNM": 25})"}) {
        if (*configuration != '\0')
            stage.setConfiguration(configuration);
        stage.ask(1, "widgets.timeline", radar);
        const json answer = stage.hear();
        EXPECT_EQ(answer["result"]["entries"][0]["isSample"], false) << answer;
        EXPECT_EQ(shownIn(answer), std::set<std::string>{});
        stage.ask(2, "widgets.snapshot", radar);
        EXPECT_EQ(stage.hear()["result"]["entry"]["isSample"], false);
    }
    EXPECT_EQ(stage.server().connectionCount(), 0U);
}

TEST_F(ExtensionScenario, aChangedConfigurationCountsAtOnce)
{
    EXPECT_EQ(timeline(), std::set<std::string>{});
    setHome();
    stage.server().answer(firstSource, {.body = twoNearHome});
    EXPECT_EQ(timeline().size(), 2U);
}

TEST_F(ExtensionScenario, snapshotsAreLiveUnlessTheyArePreviews)
{
    setHome();
    stage.server().answer(firstSource, {.body = twoNearHome});
    stage.ask(1, "widgets.snapshot", radar);
    EXPECT_EQ(stage.hear()["result"]["entry"]["isSample"], false);
    EXPECT_EQ(stage.server().requests().size(), 1U);
}

} // namespace skyvane::test
