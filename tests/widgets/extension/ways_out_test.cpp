#include "tests/widgets/extension/name_server.h"
#include "tests/widgets/extension/own_hosts.h"
#include "tests/widgets/extension/own_process.h"
#include "tests/widgets/extension/relay.h"
#include "tests/widgets/extension/scenario.h"

#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace skyvane::test {

namespace {

using Environment = std::vector<std::string>;

/// What the environment says, in place before the program starts.
struct Surrounded {
    explicit Surrounded(Environment variables, std::function<void()> prepare = {})
        : environment({.variables = std::move(variables), .prepare = std::move(prepare)})
    {
    }

    ProgramEnvironment environment;
};

/// A language and a time zone.
struct Place {
    const char* name;
    Environment environment;
};

class InAnotherPlace : private Surrounded,
                       public ExtensionScenario,
                       public testing::WithParamInterface<Place> {
protected:
    InAnotherPlace() : Surrounded(GetParam().environment) { }
};

/// A proxy, as the environment says it.
struct Way {
    const char* name;
    std::string variable;
    bool isOnNewerAddress = false;
};

class ThroughAProxy : private Surrounded, public ExtensionScenario, public testing::WithParamInterface<Way> {
protected:
    static constexpr std::uint16_t port = 3128;

    ThroughAProxy() : Surrounded({GetParam().variable}) { }

    Relay proxy{Relay::Manner::proxy, GetParam().isOnNewerAddress, port};
};

/// By a proxy that the environment excepts the first source from.
class BesideAProxy : private Surrounded, public ExtensionScenario {
protected:
    BesideAProxy() : Surrounded({"https_proxy=http://127.0.0.1:3128", "no_proxy=api.adsb.lol"}) { }
};

} // namespace

TEST_P(InAnotherPlace, everyWidgetIsServed)
{
    setHome();
    stage.server().answer(firstSource, {.body = twoNearHome});
    stage.ask(1, "widgets.timelines", {{"widgets", allThree}});
    const json answer = stage.hear();
    ASSERT_EQ(answer["result"]["timelines"].size(), 3U) << answer;
    EXPECT_EQ(shownInTimeline(answer["result"]["timelines"][1]).size(), 2U);
    stage.server().handle(firstSource, [](const auto&, Connection& connection) { connection.reset(); });
    EXPECT_EQ(timeline(), std::set<std::string>{});
}

INSTANTIATE_TEST_SUITE_P(Extension, InAnotherPlace,
    testing::Values(Place{"English", {"LANG=en_US.UTF-8", "TZ=America/New_York"}},
        Place{"German", {"LANG=de_DE.UTF-8", "LANGUAGE=de", "TZ=:Europe/Berlin"}},
        Place{"Spanish", {"LANG=es_ES.UTF-8", "TZDIR=/usr/share/zoneinfo", "TZ=Europe/Madrid"}},
        Place{"French", {"LANG=fr_FR.ISO-8859-1"}}, Place{"Arabic", {"LANG=ar_EG.UTF-8", "TZ=Africa/Cairo"}},
        Place{"Thai", {"LC_ALL=th_TH.UTF-8", "TZ=Asia/Bangkok"}}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST_P(ThroughAProxy, theSourcesAreReachedByNameAndTheConnectionRests)
{
    setHome();
    const OwnHosts noSources{"127.0.0.1 localhost proxy.example\n"};
    stage.server().answer(firstSource, {.body = twoNearHome});
    EXPECT_EQ(timeline().size(), 2U);
    EXPECT_EQ(timeline().size(), 2U);
    EXPECT_EQ(proxy.hosts(), std::vector<std::string>{"api.adsb.lol"});
    EXPECT_EQ(stage.server().connectionCount(), 1U);
}

INSTANTIATE_TEST_SUITE_P(Extension, ThroughAProxy,
    testing::Values(Way{"ofHTTP", "https_proxy=http://127.0.0.1:3128"},
        Way{"ofHTTPByName", "HTTPS_PROXY=proxy.example:3128"},
        Way{"ofSOCKS5", "all_proxy=socks5://127.0.0.1:3128"},
        Way{"ofSOCKS5ThatLooksUp", "ALL_PROXY=socks5h://proxy.example:3128"},
        Way{"ofSOCKS4", "all_proxy=socks4://127.0.0.1:3128"},
        Way{"onANewerAddress", "https_proxy=http://[::1]:3128", /*isOnNewerAddress=*/true}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST_F(BesideAProxy, whatItIsNotForIsReachedDirectly)
{
    setHome();
    stage.server().answer(firstSource, {.body = twoNearHome});
    EXPECT_EQ(timeline().size(), 2U);
}

TEST_F(ExtensionScenario, theSourcesAreReachedOverTheNewerInternetProtocol)
{
    setHome();
    const OwnHosts hosts{"127.0.0.1 localhost\n::1 api.adsb.lol\n"};
    const Relay relay{Relay::Manner::atOnce, /*isOnNewerAddress=*/true, 443};
    stage.server().answer(firstSource, {.body = twoNearHome});
    EXPECT_EQ(timeline().size(), 2U);
    EXPECT_EQ(relay.hosts().size(), 1U);
}

TEST_F(ExtensionScenario, anAddressThatLeadsNowhereIsRunPast)
{
    setHome();
    const OwnHosts hosts{"127.0.0.1 localhost\n2001:db8::1 api.adsb.lol\n127.0.0.1 api.adsb.lol\n"};
    stage.server().answer(firstSource, {.body = twoNearHome});
    EXPECT_EQ(timeline().size(), 2U);
}

TEST_F(ExtensionScenario, aNameServiceThatFailsOrIsNotThereIsNoSky)
{
    setHome();
    const OwnHosts noSources{"127.0.0.1 localhost\n"};
    EXPECT_EQ(timeline(), std::set<std::string>{});
    const NameServer failing{NameServer::Habit::failing};
    EXPECT_EQ(timeline(), std::set<std::string>{});
    EXPECT_EQ(stage.server().connectionCount(), 0U);
}

TEST_F(ExtensionScenario, aRedirectLeadsToASourceAndNowhereElse)
{
    setHome();
    stage.server().answer(firstSource,
        {.status = 302, .headers = {{.name = "Location", .value = "https://opendata.adsb.fi/good"}}});
    stage.server().answer("/good", {.body = twoNearHome});
    EXPECT_EQ(timeline().size(), 2U);
    for (const char* place : {"https://localhost/good", "https://api.adsb.lol:8443/good"}) {
        stage.server().answer(
            firstSource, {.status = 302, .headers = {{.name = "Location", .value = place}}});
        stage.server().answer(secondSource, {.body = R"({"ac":[]})"});
        EXPECT_EQ(timeline(), std::set<std::string>{}) << place;
    }
}

} // namespace skyvane::test
