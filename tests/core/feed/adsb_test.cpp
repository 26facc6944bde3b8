#include "core/feed/adsb.h"

#include "platform/json/value.h"
#include "tests/support/comma_locale.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <functional>
#include <limits>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

namespace skyvane {
namespace {

constexpr const char* first = "https://api.adsb.lol/v2/point/51.50000/-0.12000/25";
constexpr const char* second = "https://opendata.adsb.fi/api/v2/lat/51.50000/lon/-0.12000/dist/25";

const HomeLocation home{.latitude = 51.5, .longitude = -0.12, .label = "Home"};

/// Answers in turn and keeps what it was asked.
struct FakeTransport {
    using Answer = std::function<URLResponse()>;

    std::vector<Answer> answers;
    std::vector<URLRequest> requests{};

    Transport transport()
    {
        return [this](const URLRequest& request, const std::stop_token&) {
            requests.push_back(request);
            return answers.at(requests.size() - 1)();
        };
    }

    std::vector<std::string> urls() const
    {
        std::vector<std::string> list;
        for (const URLRequest& request : requests)
            list.push_back(request.url.text());
        return list;
    }
};

FakeTransport::Answer answering(std::string body, int status = 200)
{
    return [=] { return URLResponse{.status = status, .body = body}; };
}

FakeTransport::Answer failing(std::string reason)
{
    return [=]() -> URLResponse { throw TransferError{reason}; };
}

/// Fails with anything at all.
template <class Error>
FakeTransport::Answer throwing(Error error)
{
    return [=]() -> URLResponse { throw error; };
}

FakeTransport::Answer cancelled()
{
    return []() -> URLResponse { throw CancellationError{}; };
}

std::vector<std::string> fetchedHexes(FakeTransport& fake)
{
    std::vector<std::string> list;
    for (const Aircraft& aircraft : ADSB::fetch(home, 25, fake.transport()))
        list.push_back(aircraft.hex);
    return list;
}

FetchError errorOf(FakeTransport& fake)
{
    try {
        ADSB::fetch(home, 25, fake.transport());
    } catch (const FetchError& error) {
        return error;
    }
    return FetchError{"no error"};
}

std::string messageOf(FakeTransport& fake)
{
    return errorOf(fake).message;
}

std::string askedURL(const HomeLocation& from, double radiusNM)
{
    FakeTransport fake{.answers = {answering(R"({"ac":[{"hex":"a","lat":1,"lon":2}]})")}};
    ADSB::fetch(from, radiusNM, fake.transport());
    return fake.urls().at(0);
}

using Hexes = std::vector<std::string>;

constexpr const char* oneAircraft = R"({"ac":[{"hex":"a","lat":1,"lon":2,"dst":3}]})";
constexpr const char* emptySky = R"({"ac":[]})";

TEST(ADSB, asksTheFirstSourceForEightSecondsWithoutAnyHeader)
{
    FakeTransport fake{.answers = {answering(oneAircraft)}};
    EXPECT_EQ(fetchedHexes(fake), Hexes{"a"});
    const URLRequest expected{
        .url = URL::parse(first).value(), .timeout = std::chrono::seconds{8}, .headers = {}};
    EXPECT_EQ(fake.requests, std::vector{expected});
}

TEST(ADSB, theRadiusIsRoundedAndBounded)
{
    const auto asked = [](double radiusNM) {
        const std::string url = askedURL(home, radiusNM);
        return url.substr(url.rfind('/') + 1);
    };
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(asked(0.4), "1");
    EXPECT_EQ(asked(0.5), "1");
    EXPECT_EQ(asked(-7), "1");
    EXPECT_EQ(asked(12.5), "13");
    EXPECT_EQ(asked(249.4), "249");
    EXPECT_EQ(asked(249.6), "250");
    EXPECT_EQ(asked(1000), "250");
    EXPECT_EQ(asked(std::numeric_limits<double>::quiet_NaN()), "250");
    EXPECT_EQ(asked(infinity), "250");
    EXPECT_EQ(asked(-infinity), "1");
}

TEST(ADSB, coordinatesHaveFiveDecimalsInEveryLocale)
{
    const test::CommaLocale european;
    std::array<char, 8> printed{};
    std::snprintf(printed.data(), printed.size(), "%.1f", 1.5);
    ASSERT_STREQ(printed.data(), "1,5");
    const std::string url = askedURL({.latitude = 51.5, .longitude = -0.123456, .label = ""}, 9);
    EXPECT_EQ(url, "https://api.adsb.lol/v2/point/51.50000/-0.12346/9");
}

TEST(ADSB, anEmptyFirstAnswerAsksTheSecondSource)
{
    FakeTransport fake{
        .answers = {answering(emptySky), answering(R"({"aircraft":[{"hex":"b","lat":1,"lon":2}]})")}};
    EXPECT_EQ(fetchedHexes(fake), Hexes{"b"});
    EXPECT_EQ(fake.urls(), (std::vector<std::string>{first, second}));
}

TEST(ADSB, anEmptyFirstAnswerAndAFailingSecondAreAnEmptySky)
{
    FakeTransport fake{.answers = {answering(emptySky), failing("no route to host")}};
    EXPECT_EQ(fetchedHexes(fake), Hexes{});
}

TEST(ADSB, aFailingFirstSourceAndAnEmptySecondAreAnEmptySky)
{
    FakeTransport fake{.answers = {failing("no route to host"), answering(emptySky)}};
    EXPECT_EQ(fetchedHexes(fake), Hexes{});
}

TEST(ADSB, anOverloadedFirstSourceIsPassedOver)
{
    FakeTransport fake{.answers = {answering("busy", 503), answering(oneAircraft)}};
    EXPECT_EQ(fetchedHexes(fake), Hexes{"a"});
}

TEST(ADSB, whenBothFailTheLastMessageWins)
{
    FakeTransport fake{.answers = {answering("busy", 503), failing("Timeout was reached")}};
    EXPECT_EQ(messageOf(fake), "opendata.adsb.fi: Timeout was reached");
}

TEST(ADSB, everyStatusBut200IsAnError)
{
    for (const int status : {201, 204, 304, 404, 429, 503}) {
        FakeTransport fake{.answers = {failing("down"), answering(oneAircraft, status)}};
        EXPECT_EQ(messageOf(fake), "opendata.adsb.fi returned an error") << status;
    }
}

TEST(ADSB, aFailureIsToldInTheUsersWordsAndByItsKind)
{
    struct Case {
        FakeTransport::Answer answer;
        std::string words;
        FetchCause cause;
    };
    const std::vector<Case> cases{
        {throwing(TransferError{TransferProblem::timedOut, "timed out after 8006 milliseconds "}),
            ": The server did not answer in time.",
            {FetchProblem::transfer, TransferProblem::timedOut, "timed out after 8006 milliseconds"}},
        {answering("<html>"), ": The answer is not JSON.", {.problem = FetchProblem::notJSON}},
        {answering(std::string(JSON::largestText + 1, ' ')), ": The answer is too large.",
            {FetchProblem::transfer, TransferProblem::tooLarge, "longer than 8 MiB"}},
        {answering(R"({"ac":[{"hex":"a"},{"hex":1}]})"), ": The answer is not what was expected.",
            {.problem = FetchProblem::shape, .details = "ac[1].hex: expected a string, found 1"}},
        {answering("{}", 429), " returned an error", {.problem = FetchProblem::status, .status = 429}},
        {throwing(std::runtime_error{"out of sockets"}), ": The request failed.",
            {.problem = FetchProblem::other, .details = "out of sockets"}},
        {throwing(std::bad_alloc{}), ": The request failed.",
            {.problem = FetchProblem::other, .details = std::bad_alloc{}.what()}},
        {throwing(7), ": The request failed.", {.problem = FetchProblem::other}},
    };
    for (const Case& expected : cases) {
        FakeTransport fake{.answers = {failing("down"), expected.answer}};
        FetchError error = errorOf(fake);
        EXPECT_EQ(error.message, "opendata.adsb.fi" + expected.words);
        if (error.cause.problem == FetchProblem::notJSON)
            error.cause.details.clear(); // Each version of the library has words of its own.
        EXPECT_EQ(error.cause, expected.cause) << error.message << error.cause.details;
    }
}

TEST(ADSB, whatBecameOfEachSourceIsTold)
{
    FakeTransport both{.answers = {answering("{}", 403), answering(oneAircraft)}};
    const ADSB::Answer answer = ADSB::ask(home, 25, both.transport());
    EXPECT_EQ(answer.aircraft.size(), 1U);
    EXPECT_FALSE(answer.problem);
    EXPECT_EQ(answer.asked,
        (std::vector<ADSB::Inquiry>{
            {.source = "api.adsb.lol", .problem = FetchCause{.problem = FetchProblem::status, .status = 403}},
            {.source = "opendata.adsb.fi", .count = 1},
        }));
    FakeTransport one{.answers = {answering(oneAircraft)}};
    EXPECT_EQ(ADSB::ask(home, 25, one.transport()).asked,
        (std::vector<ADSB::Inquiry>{{.source = "api.adsb.lol", .count = 1}}));
    FakeTransport quiet{.answers = {answering("{}"), answering("{}", 500)}};
    const ADSB::Answer nobody = ADSB::ask(home, 25, quiet.transport());
    EXPECT_FALSE(nobody.problem);
    EXPECT_EQ(nobody.asked.at(1).problem->status, 500);
    FakeTransport none{.answers = {answering("{}", 503), answering("{}", 503)}};
    EXPECT_EQ(
        ADSB::ask(home, 25, none.transport()).problem.value().message, "opendata.adsb.fi returned an error");
}

TEST(ADSB, aTransportOfAnotherKindMayFailInItsOwnWay)
{
    FakeTransport fake{.answers = {throwing(7), answering(oneAircraft)}};
    EXPECT_EQ(fetchedHexes(fake), Hexes{"a"});
}

TEST(ADSB, aFetchErrorDescribesItselfByItsMessage)
{
    const FetchError error{"opendata.adsb.fi returned an error"};
    EXPECT_EQ(error.errorDescription(), error.message);
    EXPECT_STREQ(error.what(), "opendata.adsb.fi returned an error");
}

TEST(ADSB, cancellationEndsTheFetchAtOnce)
{
    FakeTransport fake{.answers = {cancelled()}};
    EXPECT_THROW(ADSB::fetch(home, 25, fake.transport()), CancellationError);
    EXPECT_EQ(fake.requests.size(), 1U);
}

TEST(ADSB, theCallersStopTokenReachesTheTransport)
{
    std::stop_source source;
    const Transport transport = [&](const URLRequest&, const std::stop_token& stop) -> URLResponse {
        source.request_stop();
        EXPECT_TRUE(stop.stop_requested());
        throw CancellationError{};
    };
    EXPECT_THROW(ADSB::fetch(home, 25, transport, source.get_token()), CancellationError);
}

TEST(ADSB, keepsOnlyAircraftWithAFreshPosition)
{
    FakeTransport fake{.answers = {answering(R"({"ac":[
        {"hex":"stale","lat":1,"lon":2,"seen_pos":60.0},
        {"hex":"fresh","lat":1,"lon":2,"seen_pos":59.99},
        {"hex":"ageless","lat":1,"lon":2},
        {"hex":"nowhere","lat":1},
        {"hex":"astray","lon":2}
    ]})")}};
    EXPECT_EQ(fetchedHexes(fake), (Hexes{"fresh", "ageless"}));
}

TEST(ADSB, aListOfOnlyStaleAircraftIsAnEmptyAnswer)
{
    FakeTransport fake{.answers
        = {answering(R"({"ac":[{"hex":"stale","lat":1,"lon":2,"seen_pos":60}]})"), answering(oneAircraft)}};
    EXPECT_EQ(fetchedHexes(fake), Hexes{"a"});
}

TEST(ADSB, sortsByDistanceKeepingTheFeedsOrderAmongEquals)
{
    FakeTransport fake{.answers = {answering(R"({"ac":[
        {"hex":"unknown1","lat":1,"lon":2},
        {"hex":"far","lat":1,"lon":2,"dst":9},
        {"hex":"near1","lat":1,"lon":2,"dst":1.5},
        {"hex":"unknown2","lat":1,"lon":2},
        {"hex":"near2","lat":1,"lon":2,"dst":1.5}
    ]})")}};
    EXPECT_EQ(fetchedHexes(fake), (Hexes{"near1", "near2", "far", "unknown1", "unknown2"}));
}

TEST(ADSB, manyAtOneDistanceKeepTheFeedsOrder)
{
    constexpr int count = 40; // Of a few, an unstable sort keeps the order by chance.
    std::string json;
    Hexes expected;
    for (const char* const distance : {"1.5", ""}) {
        for (int index = 0; index < count; ++index) {
            const std::string hex = distance + ("x" + std::to_string(index));
            expected.push_back(hex);
            json += R"({"lat":1,"lon":2,"hex":")" + hex + '"'
                + (*distance != '\0' ? std::string{R"(,"dst":)"} + distance : "") + "},";
        }
    }
    FakeTransport fake{
        .answers = {answering(R"({"ac":[)" + json + R"({"hex":"near","lat":1,"lon":2,"dst":1}]})")}};
    expected.insert(expected.begin(), "near");
    EXPECT_EQ(fetchedHexes(fake), expected);
}

TEST(ADSB, noDistanceIsFartherThanAnyDistance)
{
    FakeTransport fake{.answers = {answering(R"({"ac":[
        {"hex":"unknown","lat":1,"lon":2},
        {"hex":"far","lat":1,"lon":2,"dst":5000},
        {"hex":"farthest","lat":1,"lon":2,"dst":1e300}
    ]})")}};
    EXPECT_EQ(fetchedHexes(fake), (Hexes{"far", "farthest", "unknown"}));
}

TEST(ADSB, takesTheListAcEvenWhenItIsEmptyBesideAnother)
{
    FakeTransport fake{
        .answers = {answering(R"({"ac":[],"aircraft":[{"hex":"a","lat":1,"lon":2}]})"), answering("{}")}};
    EXPECT_EQ(fetchedHexes(fake), Hexes{});
    EXPECT_EQ(fake.requests.size(), 2U);
}

TEST(ADSB, returnsEveryAircraftOfALongAnswer)
{
    std::string json = R"({"ac":[)";
    for (int index = 0; index < 700; ++index)
        json += (index == 0 ? "" : ",")
            + (R"({"hex":")" + std::to_string(index) + R"(","lat":1,"lon":2,"dst":7})");
    FakeTransport fake{.answers = {answering(json + "]}")}};
    EXPECT_EQ(fetchedHexes(fake).size(), 700U);
}

} // namespace
} // namespace skyvane
