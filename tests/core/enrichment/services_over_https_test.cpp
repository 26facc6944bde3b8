#include "core/enrichment/photo_api.h"
#include "core/enrichment/route_api.h"
#include "platform/net/url_session.h"
#include "platform/pinned.h"
#include "tests/core/enrichment/fake_service.h"
#include "tests/support/certificate_authority.h"
#include "tests/support/https_server.h"
#include "tests/support/scratch_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <string>
#include <thread>

namespace skyvane::test {
namespace {

using namespace std::chrono_literals;

constexpr const char* routeBody = R"({"response":{"flightroute":{
    "origin":{"iata_code":"SFO","municipality":"San Francisco"},"destination":{"icao_code":"KJFK"}}}})";
constexpr const char* photoBody = R"({"photos":[{"thumbnail_large":{"src":"https://t.example.test/1.jpg"},
    "link":"https://example.test/1","photographer":"Jane Example"}]})";

/// Both services, from the client's call to the bytes on the wire and back.
class ServicesOverHTTPS : public testing::Test {
protected:
    void answerBoth(const Answer& answer)
    {
        server.answer("/v0/callsign/", answer);
        server.answer("/pub/photos/hex/", answer);
    }

    static std::optional<FlightRoute> route(const Transport& transport = UrlSession{})
    {
        return RouteAPI::fetch("UAL123", transport);
    }
    static std::optional<PlanePhoto> photo(const Transport& transport = UrlSession{})
    {
        return PhotoAPI::fetch("a1b2c3", transport);
    }

    /// What was sent for one request with no header set but the User-Agent.
    static void expectPolite(
        const RecordedRequest& request, const std::string& host, const std::string& target)
    {
        EXPECT_EQ(request.method, "GET");
        EXPECT_EQ(request.target, target);
        EXPECT_EQ(request.header("Host"), host);
        EXPECT_THAT(request.headers, testing::Contains(expectedUserAgent).Times(1));
        std::vector<std::string> names;
        for (const HTTPHeader& header : request.headers)
            names.push_back(header.name);
        EXPECT_THAT(names, testing::UnorderedElementsAre("Host", "User-Agent", "Accept", "Accept-Encoding"));
    }

    ScratchFolder scratch;
    CertificateAuthority authority{scratch.path() / "authority.pem"};
    HttpsServer server{authority, {"api.adsbdb.com", "api.planespotters.net"}};
    Pinned<Network> network{server.network()};
};

TEST_F(ServicesOverHTTPS, aRouteComesFromTheRouteDatabase)
{
    server.answer("/v0/callsign/", {.body = routeBody});
    EXPECT_EQ(route(),
        (FlightRoute{.originCode = "SFO", .originCity = "San Francisco", .destinationCode = "KJFK"}));
    ASSERT_EQ(server.requests().size(), 1U);
    expectPolite(server.requests()[0], "api.adsbdb.com", "/v0/callsign/UAL123");
}

TEST_F(ServicesOverHTTPS, aPhotoComesFromThePhotoService)
{
    server.answer("/pub/photos/hex/", {.body = photoBody});
    EXPECT_EQ(photo(),
        (PlanePhoto{.thumbnailURL = URL::parse("https://t.example.test/1.jpg").value(),
            .pageURL = URL::parse("https://example.test/1"),
            .photographer = "Jane Example"}));
    ASSERT_EQ(server.requests().size(), 1U);
    expectPolite(server.requests()[0], "api.planespotters.net", "/pub/photos/hex/a1b2c3");
}

TEST_F(ServicesOverHTTPS, whatIsAskedForIsSentAsItStands)
{
    RouteAPI::fetch("ual%20/1?x=%e9", UrlSession{});
    PhotoAPI::fetch("~A1b2C3", UrlSession{});
    ASSERT_EQ(server.requests().size(), 2U);
    EXPECT_EQ(server.requests()[0].target, "/v0/callsign/ual%20/1?x=%e9");
    EXPECT_EQ(server.requests()[1].target, "/pub/photos/hex/~A1b2C3");
}

TEST_F(ServicesOverHTTPS, whatFormsNoURLReachesNobody)
{
    EXPECT_EQ(RouteAPI::fetch("UAL 123", UrlSession{}), std::nullopt);
    EXPECT_EQ(PhotoAPI::fetch("a1 b2", UrlSession{}), std::nullopt);
    EXPECT_EQ(server.connectionCount(), 0U);
}

TEST_F(ServicesOverHTTPS, everyStatusBut200IsAbsentAfterOneRequest)
{
    std::size_t asked = 0;
    for (const int status : {201, 404, 429, 500}) {
        server.answer("/v0/callsign/", {.status = status, .body = routeBody});
        server.answer("/pub/photos/hex/", {.status = status, .body = photoBody});
        EXPECT_EQ(route(), std::nullopt) << status;
        EXPECT_EQ(photo(), std::nullopt) << status;
        asked += 2;
        EXPECT_EQ(server.requests().size(), asked) << status;
    }
}

TEST_F(ServicesOverHTTPS, anAnswerThatIsNotJSONIsAbsent)
{
    answerBoth({.body = "<html>busy</html>"});
    EXPECT_EQ(route(), std::nullopt);
    EXPECT_EQ(photo(), std::nullopt);
}

TEST_F(ServicesOverHTTPS, aServerThatNobodyVouchesForIsAbsent)
{
    answerBoth({.body = routeBody});
    for (const char* host : {"api.adsbdb.com", "api.planespotters.net"})
        server.present(host, CertificateAuthority::selfSigned({host}));
    EXPECT_EQ(route(), std::nullopt);
    EXPECT_EQ(photo(), std::nullopt);
    EXPECT_TRUE(server.requests().empty());
}

TEST_F(ServicesOverHTTPS, aLostConnectionIsAbsent)
{
    server.greet(&Connection::reset);
    EXPECT_EQ(route(), std::nullopt);
    EXPECT_EQ(photo(), std::nullopt);
}

TEST_F(ServicesOverHTTPS, aStalledAnswerIsAbsentAtOnceWhenTheCallerStops)
{
    server.handle("/", [](const auto&, Connection& connection) { connection.stall(); });
    std::stop_source source;
    auto stalledRoute = std::async(
        std::launch::async, [&] { return RouteAPI::fetch("UAL123", UrlSession{}, source.get_token()); });
    auto stalledPhoto = std::async(
        std::launch::async, [&] { return PhotoAPI::fetch("a1b2c3", UrlSession{}, source.get_token()); });
    ASSERT_TRUE(server.waitForRequests(2));
    const auto stopped = std::chrono::steady_clock::now();
    source.request_stop();
    EXPECT_EQ(stalledRoute.get(), std::nullopt);
    EXPECT_EQ(stalledPhoto.get(), std::nullopt);
    EXPECT_LT(std::chrono::steady_clock::now() - stopped, 4s);
}

TEST_F(ServicesOverHTTPS, aCallerThatHasStoppedAsksNobody)
{
    std::stop_source source;
    source.request_stop();
    EXPECT_EQ(RouteAPI::fetch("UAL123", UrlSession{}, source.get_token()), std::nullopt);
    EXPECT_EQ(PhotoAPI::fetch("a1b2c3", UrlSession{}, source.get_token()), std::nullopt);
    EXPECT_EQ(server.connectionCount(), 0U);
}

TEST_F(ServicesOverHTTPS, anAnswerThatTakesLongerThanTheTimeoutIsAbsent)
{
    server.handle("/", [](const auto&, Connection& connection) { connection.stall(); });
    const Transport soonerTimedOut = [](URLRequest request, std::stop_token stop) {
        EXPECT_EQ(request.timeout, 8s);
        request.timeout = 200ms;
        return UrlSession{}(request, stop);
    };
    EXPECT_EQ(route(soonerTimedOut), std::nullopt);
    EXPECT_EQ(photo(soonerTimedOut), std::nullopt);
}

TEST_F(ServicesOverHTTPS, manyTasksMayAskAtOnce)
{
    server.answer("/v0/callsign/", {.body = routeBody});
    server.answer("/pub/photos/hex/", {.body = photoBody});
    std::vector<std::future<bool>> found;
    for (int task = 0; task < 8; ++task) {
        found.push_back(std::async(std::launch::async, [] { return route().has_value(); }));
        found.push_back(std::async(std::launch::async, [] { return photo().has_value(); }));
    }
    for (auto& result : found)
        EXPECT_TRUE(result.get());
    EXPECT_EQ(server.requests().size(), 16U);
}

} // namespace
} // namespace skyvane::test
