#include "tests/platform/net/url_session_fixture.h"
#include "tests/support/compressed.h"

#include <chrono>
#include <cstddef>
#include <string>

namespace skyvane::test {

namespace {

using std::chrono::steady_clock;

/// The library has words of its own for each stage that a transfer was in.
const auto saysItTookTooLong = testing::ContainsRegex("timed out|timeout");

} // namespace

TEST_F(UrlSessionTest, takesABodyOf8MiBAndNoByteMore)
{
    server.answer("/", {.body = std::string(8 * mebibyte, 'x')});
    EXPECT_EQ(get().body.size(), 8 * mebibyte);
    server.answer("/", {.body = std::string(8 * mebibyte + 1, 'x')});
    EXPECT_THAT(failure(), HasSubstr("longer than 8 MiB"));
}

TEST_F(UrlSessionTest, boundsABodyThatNeverEnds)
{
    server.handle("/", [](const auto&, Connection& connection) {
        connection.send("HTTP/1.1 200 OK\r\n\r\n");
        for (const std::string piece(mebibyte, 'x'); true;)
            connection.send(piece);
    });
    EXPECT_THAT(failure(), HasSubstr("longer than 8 MiB"));
}

TEST_F(UrlSessionTest, keepsNoRoomForABodyOfAnAbsurdAnnouncedLength)
{
    server.handle("/", [](const auto&, Connection& connection) {
        connection.send("HTTP/1.1 200 OK\r\nContent-Length: 9000000000000000000\r\n\r\nall of it");
        connection.close();
    });
    EXPECT_EQ(problem(), TransferProblem::cut);
}

TEST_F(UrlSessionTest, refusesALengthThatIsNoneHoweverGoodTheBodyIs)
{
    for (const char* length : {"1000000000000000000000000000000", "99999999999999999999"}) {
        server.handle("/", [length](const auto&, Connection& connection) {
            connection.send(
                std::string{"HTTP/1.1 200 OK\r\nContent-Length: "} + length + "\r\n\r\nall of it");
            connection.close();
        });
        EXPECT_EQ(problem(), TransferProblem::tooLarge) << length;
    }
}

TEST_F(UrlSessionTest, heedsNoLengthBesideChunks)
{
    server.handle("/", [](const auto&, Connection& connection) {
        connection.send("HTTP/1.1 200 OK\r\nContent-Length: 99999999999999999999\r\n"
                        "Transfer-Encoding: chunked\r\n\r\n4\r\nhere\r\n0\r\n\r\n");
    });
    EXPECT_EQ(get().body, "here");
}

TEST_F(UrlSessionTest, boundsABodyThatIsSmallOnlyWhileCompressed)
{
    server.handle("/", [](const auto&, Connection& connection) {
        connection.send("HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\n\r\n");
        connection.send(endlessGzip().first(430'000)); // Some 64 MiB.
        connection.close();
    });
    EXPECT_THAT(failure(), HasSubstr("longer than 8 MiB"));
}

TEST_F(UrlSessionTest, boundsTheHeadersOfAnAnswer)
{
    server.handle("/", [](const auto&, Connection& connection) {
        connection.send("HTTP/1.1 200 OK\r\n");
        for (const std::string line = "X-Flood: " + std::string(1000, 'x') + "\r\n"; true;)
            connection.send(line);
    });
    EXPECT_THAT(failure(), HasSubstr("headers are longer than 256 KiB"));
}

TEST_F(UrlSessionTest, boundsOneHeaderThatNeverEnds)
{
    server.handle("/", [](const auto&, Connection& connection) {
        connection.send("HTTP/1.1 200 OK\r\nX-Flood: ");
        for (const std::string piece(1000, 'x'); true;)
            connection.send(piece);
    });
    EXPECT_NE(failure(), "");
}

TEST_F(UrlSessionTest, boundsInformationalAnswers)
{
    server.handle("/", [](const auto&, Connection& connection) {
        while (true)
            connection.send("HTTP/1.1 103 Early Hints\r\nLink: </a>\r\n\r\n");
    });
    // Newer versions of the library have a limit of their own, which speaks first.
    EXPECT_THAT(failure(),
        testing::AnyOf(HasSubstr("headers are longer than 256 KiB"), HasSubstr("Too many response headers")));
    EXPECT_EQ(problem(), TransferProblem::tooLarge);
}

TEST_F(UrlSessionTest, boundsTheHeadersOfAllRedirectsTogether)
{
    server.handle("/", [](const auto&, Connection& connection) {
        connection.answer({.status = 302,
            .headers
            = {{.name = "Location", .value = "/"}, {.name = "X-Flood", .value = std::string(60'000, 'x')}}});
    });
    EXPECT_THAT(failure(), HasSubstr("headers are longer than 256 KiB"));
    EXPECT_EQ(server.requests().size(), 5U);
}

TEST_F(UrlSessionTest, endsAStalledAnswerAfterTheTimeoutOfTheRequest)
{
    server.handle("/", [](const auto&, Connection& connection) { connection.stall(); });
    URLRequest wanted = request();
    wanted.timeout = 300ms;
    const auto start = steady_clock::now();
    EXPECT_THAT(failure(wanted), saysItTookTooLong);
    EXPECT_GE(steady_clock::now() - start, 290ms);
    EXPECT_LT(steady_clock::now() - start, 1s);
}

TEST_F(UrlSessionTest, endsAStalledHandshakeAfterTheTimeoutOfTheRequest)
{
    server.greet(&Connection::stall);
    URLRequest wanted = request();
    wanted.timeout = 300ms;
    EXPECT_THAT(failure(wanted), saysItTookTooLong);
}

TEST_F(UrlSessionTest, theTimeoutIsForAllRedirectsTogether)
{
    server.handle("/", [](const auto&, Connection& connection) {
        connection.drip(head({.status = 302, .headers = {{.name = "Location", .value = "/"}}}), 20, 50ms);
    });
    URLRequest wanted = request();
    wanted.timeout = 400ms;
    EXPECT_THAT(failure(wanted), saysItTookTooLong);
    EXPECT_GE(server.requests().size(), 2U);
}

TEST_F(UrlSessionTest, endsEveryTransferAfterEightSeconds)
{
    server.handle("/", [](const auto&, Connection& connection) {
        connection.send("HTTP/1.1 200 OK\r\n\r\n");
        connection.drip(std::string(10'000, 'x'), 1, 20ms);
    });
    URLRequest wanted = request();
    wanted.timeout = 1h;
    const auto start = steady_clock::now();
    EXPECT_THAT(failure(wanted), saysItTookTooLong);
    EXPECT_GE(steady_clock::now() - start, 7990ms);
    EXPECT_LT(steady_clock::now() - start, 8500ms);
}

TEST_F(UrlSessionTest, aTimeoutOfNothingIsNotForever)
{
    server.handle("/", [](const auto&, Connection& connection) { connection.stall(); });
    URLRequest wanted = request();
    wanted.timeout = 0ms;
    const auto start = steady_clock::now();
    EXPECT_NE(failure(wanted), "");
    EXPECT_LT(steady_clock::now() - start, 1s);
}

} // namespace skyvane::test
