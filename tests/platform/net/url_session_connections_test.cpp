#include "platform/net/url_session.h"
#include "tests/platform/net/url_session_fixture.h"

#include <future>
#include <latch>
#include <stop_token>

namespace skyvane::test {

using UrlSessionConnections = UrlSessionTest;

TEST_F(UrlSessionConnections, aConnectionServesTheNextRequestToItsHost)
{
    server.answer("/", {.body = "here"});
    EXPECT_EQ(get().body, "here");
    EXPECT_EQ(get(request("https://example.test/again")).body, "here");
    EXPECT_EQ(server.requests().size(), 2U);
    EXPECT_EQ(server.connectionCount(), 1U);
}

TEST_F(UrlSessionConnections, aRequestOnAnotherThreadTakesIt)
{
    server.answer("/", {.body = "here"});
    get();
    EXPECT_EQ(std::async(std::launch::async, [this] { return get().body; }).get(), "here");
    EXPECT_EQ(server.connectionCount(), 1U);
}

TEST_F(UrlSessionConnections, anotherHostHasOneOfItsOwn)
{
    server.answer("/", {.body = "here"});
    get();
    get(request("https://other.test/"));
    EXPECT_EQ(server.connectionCount(), 2U);
}

TEST_F(UrlSessionConnections, onlyTheLastOneIsKept)
{
    server.answer("/", {.body = "here"});
    get();
    get(request("https://other.test/"));
    get();
    EXPECT_EQ(server.connectionCount(), 3U);
}

TEST_F(UrlSessionConnections, aCopyOfTheSessionSharesThem)
{
    server.answer("/", {.body = "here"});
    const Transport copy = session;
    get();
    EXPECT_EQ(copy(request(), {}).body, "here");
    EXPECT_EQ(server.connectionCount(), 1U);
}

TEST_F(UrlSessionConnections, anotherSessionSharesNone)
{
    server.answer("/", {.body = "here"});
    get();
    EXPECT_EQ(UrlSession{}(request(), {}).body, "here");
    EXPECT_EQ(server.connectionCount(), 2U);
}

TEST_F(UrlSessionConnections, requestsAtTheSameTimeDoNotWaitForOneAnother)
{
    std::latch bothAreHere{2};
    server.handle("/", [&](const auto&, Connection& connection) {
        bothAreHere.arrive_and_wait();
        connection.answer({.body = "here"});
    });
    auto other = std::async(std::launch::async, [this] { return get().body; });
    EXPECT_EQ(get().body, "here");
    EXPECT_EQ(other.get(), "here");
    EXPECT_EQ(server.connectionCount(), 2U);
}

TEST_F(UrlSessionConnections, oneThatTheServerHasClosedIsReplaced)
{
    server.handle("/", [](const auto&, Connection& connection) {
        connection.answer({.body = "here"});
        connection.close();
    });
    EXPECT_EQ(get().body, "here");
    EXPECT_EQ(get().body, "here");
    EXPECT_EQ(server.connectionCount(), 2U);
}

TEST_F(UrlSessionConnections, oneThatBreaksWhileItRestsIsReplaced)
{
    std::latch hasArrived{1};
    std::latch isBroken{1};
    server.handle("/", [&](const auto&, Connection& connection) {
        connection.answer({.body = "here"});
        hasArrived.wait();
        connection.reset();
        isBroken.count_down();
    });
    EXPECT_EQ(get().body, "here");
    hasArrived.count_down();
    isBroken.wait();
    server.answer("/", {.body = "there"});
    EXPECT_EQ(get().body, "there");
    EXPECT_EQ(server.connectionCount(), 2U);
}

TEST_F(UrlSessionConnections, oneWhoseServerSpokeWithoutBeingAskedIsReplaced)
{
    for (const char* unasked : {"HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\nevil",
             "HTTP/1.1 408 Request Timeout\r\nContent-Length: 0\r\n\r\n"}) {
        SCOPED_TRACE(unasked);
        session = {};
        const std::size_t before = server.connectionCount();
        std::latch hasArrived{1};
        std::latch hasSpoken{1};
        server.handle("/", [&](const auto&, Connection& connection) {
            connection.answer({.body = "here"});
            hasArrived.wait();
            connection.send(unasked);
            hasSpoken.count_down();
        });
        EXPECT_EQ(get().body, "here");
        hasArrived.count_down();
        hasSpoken.wait();
        server.answer("/", {.body = "there"});
        EXPECT_EQ(get().body, "there");
        EXPECT_EQ(server.connectionCount(), before + 2);
    }
}

TEST_F(UrlSessionConnections, oneOfARedirectServesTheHostThatItLedTo)
{
    server.answer(
        "/", {.status = 302, .headers = {{.name = "Location", .value = "https://other.test/there"}}});
    server.answer("/there", {.body = "there"});
    EXPECT_EQ(get().body, "there");
    EXPECT_EQ(get(request("https://other.test/there")).body, "there");
    EXPECT_EQ(server.connectionCount(), 2U);
}

TEST_F(UrlSessionConnections, oneThatTheServerEndsInsteadOfAnsweringIsReplaced)
{
    server.answer("/", {.body = "here"});
    get();
    server.handle("/", [this](const auto&, Connection& connection) {
        server.answer("/", {.body = "there"});
        connection.close();
    });
    EXPECT_EQ(get().body, "there");
    EXPECT_EQ(server.connectionCount(), 2U);
}

TEST_F(UrlSessionConnections, afterACancelledTransferTheNextOneSucceeds)
{
    server.answer("/", {.body = "here"});
    get();
    std::stop_source stop;
    server.handle("/", [&](const auto&, Connection& connection) {
        stop.request_stop();
        connection.stall();
    });
    EXPECT_THROW(session(request(), stop.get_token()), CancellationError);
    server.answer("/", {.body = "there"});
    EXPECT_EQ(get().body, "there");
}

TEST_F(UrlSessionConnections, anAnswerCutShortSpoilsNoLaterOne)
{
    server.answer("/", {.body = "here"});
    get();
    server.handle("/", [](const auto&, Connection& connection) {
        connection.send("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nhalf of");
        connection.close();
    });
    EXPECT_NE(failure(), "");
    server.answer("/", {.body = "there"});
    EXPECT_EQ(get().body, "there");
}

} // namespace skyvane::test
