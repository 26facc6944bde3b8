#include "tests/platform/net/url_session_fixture.h"

#include <future>
#include <latch>
#include <string>
#include <vector>

namespace skyvane::test {

using testing::Not;

TEST_F(UrlSessionTest, givesStatusAndBody)
{
    server.answer("/v2", {.status = 418, .body = "short and stout"});
    EXPECT_EQ(get(request("https://example.test/v2?a=%20b")),
        (URLResponse{.status = 418, .body = "short and stout"}));
    ASSERT_EQ(server.requests().size(), 1U);
    EXPECT_EQ(server.requests()[0].method, "GET");
    EXPECT_EQ(server.requests()[0].target, "/v2?a=%20b");
    EXPECT_EQ(server.requests()[0].header("host"), "example.test");
}

TEST_F(UrlSessionTest, saysHowLongTheServerAsksToBeLeftAlone)
{
    server.answer("/seconds", {.status = 429, .headers = {{"Retry-After", "120"}}});
    EXPECT_EQ(get(request("https://example.test/seconds")).retryAfter, std::chrono::seconds{120});
    server.answer("/date", {.status = 503, .headers = {{"Retry-After", "Fri, 31 Dec 2100 23:59:59 GMT"}}});
    EXPECT_EQ(get(request("https://example.test/date")).retryAfter, std::chrono::hours{7 * 24})
        << "a week at most";
    server.answer("/nonsense", {.status = 429, .headers = {{"Retry-After", "soon"}}});
    EXPECT_EQ(get(request("https://example.test/nonsense")).retryAfter, std::nullopt);
    EXPECT_EQ(get().retryAfter, std::nullopt);
}

TEST_F(UrlSessionTest, asksForThePathAsItStands)
{
    get(request("https://example.test/a/../b/./c"));
    EXPECT_EQ(server.requests().at(0).target, "/a/../b/./c");
}

TEST_F(UrlSessionTest, keepsEveryByteOfABody)
{
    std::string body(3 * mebibyte, '\0');
    for (std::size_t at = 0; at < body.size(); ++at)
        body[at] = static_cast<char>(at * 31 % 256);
    server.answer("/", {.body = body});
    EXPECT_TRUE(get().body == body);
}

TEST_F(UrlSessionTest, joinsChunks)
{
    server.handle("/",
        [](const auto&, Connection& connection) { connection.answerChunked({.body = "twelve bytes"}, 5); });
    EXPECT_EQ(get(), (URLResponse{.status = 200, .body = "twelve bytes"}));
}

TEST_F(UrlSessionTest, anEmptyAnswerIsAnAnswer)
{
    server.answer("/", {.status = 204});
    EXPECT_EQ(get(), (URLResponse{.status = 204, .body = ""}));
}

TEST_F(UrlSessionTest, aBodyMayEndWithTheConnection)
{
    server.handle("/", [](const auto&, Connection& connection) {
        connection.send("HTTP/1.1 200 OK\r\n\r\nall of it");
        connection.close();
    });
    EXPECT_EQ(get().body, "all of it");
}

TEST_F(UrlSessionTest, informationalAnswersArePassedOver)
{
    server.handle("/", [](const auto&, Connection& connection) {
        connection.send("HTTP/1.1 103 Early Hints\r\nLink: </a>\r\n\r\n");
        connection.answer({.body = "the answer"});
    });
    EXPECT_EQ(get(), (URLResponse{.status = 200, .body = "the answer"}));
}

TEST_F(UrlSessionTest, identifiesItself)
{
    get();
    EXPECT_THAT(server.requests().at(0).header("User-Agent").value(),
        testing::MatchesRegex("[a-z]+_test/[0-9.]+ \\(\\+mailto:[^ )]+@[^ )]+\\)"));
}

TEST_F(UrlSessionTest, aUserAgentOfTheRequestReplacesItsOwn)
{
    URLRequest wanted = request();
    wanted.headers = {{.name = "user-AGENT", .value = "Someone/1.0"}};
    get(wanted);
    const auto headers = server.requests().at(0).headers;
    EXPECT_THAT(headers, testing::Contains(HTTPHeader{.name = "user-AGENT", .value = "Someone/1.0"}));
    EXPECT_THAT(headers, Not(testing::Contains(testing::Field(&HTTPHeader::name, "User-Agent"))));
}

TEST_F(UrlSessionTest, sendsTheHeadersOfTheRequestAsGiven)
{
    URLRequest wanted = request();
    wanted.headers = {{.name = "X-One", .value = "1, 2; 3"}, {.name = "x-empty", .value = ""}};
    get(wanted);
    EXPECT_THAT(server.requests().at(0).headers,
        testing::IsSupersetOf(
            {HTTPHeader{.name = "X-One", .value = "1, 2; 3"}, HTTPHeader{.name = "x-empty", .value = ""}}));
}

TEST_F(UrlSessionTest, sendsNoOtherHeader)
{
    get();
    std::vector<std::string> names;
    const RecordedRequest asked = server.requests().at(0);
    for (const HTTPHeader& header : asked.headers)
        names.push_back(header.name);
    EXPECT_THAT(names, testing::UnorderedElementsAre("Host", "User-Agent", "Accept", "Accept-Encoding"));
}

TEST_F(UrlSessionTest, undoesCompression)
{
    const std::string gzip{"\x1f\x8b\x08\x00\x00\x00\x00\x00\x02\x03\xcb\x48\xcd\xc9\xc9\x07\x00\x86\xa6\x10"
                           "\x36\x05\x00\x00\x00",
        25};
    const std::string deflate{"\x78\x9c\xcb\x48\xcd\xc9\xc9\x07\x00\x06\x2c\x02\x15", 13};
    server.answer("/gzip", {.headers = {{.name = "Content-Encoding", .value = "gzip"}}, .body = gzip});
    server.answer(
        "/deflate", {.headers = {{.name = "Content-Encoding", .value = "deflate"}}, .body = deflate});
    EXPECT_EQ(get(request("https://example.test/gzip")).body, "hello");
    EXPECT_EQ(get(request("https://example.test/deflate")).body, "hello");
    EXPECT_THAT(server.requests().at(0).header("Accept-Encoding").value(),
        testing::AllOf(HasSubstr("gzip"), HasSubstr("deflate")));
}

TEST_F(UrlSessionTest, refusesABrokenCompressedBody)
{
    server.answer(
        "/", {.headers = {{.name = "Content-Encoding", .value = "gzip"}}, .body = "not compressed at all"});
    EXPECT_NE(failure(), "");
}

TEST_F(UrlSessionTest, aRefusedConnectionIsAFailure)
{
    const Pinned<Network> nowhere{
        {.authorityFile = authority.file(), .connectTo = {"example.test:443:127.0.0.1:1"}}};
    EXPECT_THAT(failure(), HasSubstr("connect"));
}

TEST_F(UrlSessionTest, aConnectionLostBeforeTheAnswerIsAFailure)
{
    server.greet(&Connection::reset);
    EXPECT_NE(failure(), "");
    server.greet([](Connection& connection) {
        connection.receive();
        connection.reset();
    });
    EXPECT_NE(failure(), "");
    server.greet([](Connection& connection) { connection.send("no TLS here\r\n"); });
    EXPECT_NE(failure(), "");
    server.greet({});
    server.handle("/", [](const auto&, Connection& connection) { connection.reset(); });
    EXPECT_NE(failure(), "");
    server.handle("/", [](const auto&, Connection& connection) { connection.close(); });
    EXPECT_NE(failure(), "");
}

TEST_F(UrlSessionTest, aTruncatedBodyIsAFailure)
{
    const std::string half = head({.headers = {{.name = "Content-Length", .value = "20"}}}) + "ten bytes.";
    server.handle("/closed", [&](const auto&, Connection& connection) {
        connection.send(half);
        connection.close();
    });
    server.handle("/reset", [&](const auto&, Connection& connection) {
        connection.send(half);
        connection.reset();
    });
    server.handle("/chunked", [](const auto&, Connection& connection) {
        connection.send("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\nhello\r\n");
        connection.close();
    });
    server.handle("/cut", [&](const auto&, Connection& connection) {
        connection.send(half);
        connection.cut();
    });
    for (const char* target : {"closed", "reset", "chunked", "cut"})
        EXPECT_NE(failure(request(std::string{"https://example.test/"} + target)), "") << target;
}

TEST_F(UrlSessionTest, anAnswerThatIsNotHTTPIsAFailure)
{
    server.handle("/", [](const auto&, Connection& connection) {
        connection.send("220 ready\r\n");
        connection.close();
    });
    EXPECT_NE(failure(), "");
}

TEST_F(UrlSessionTest, manyTransfersRunAtOnce)
{
    constexpr std::size_t count = 20;
    std::latch allAreHere{count};
    server.handle("/", [&](const RecordedRequest& asked, Connection& connection) {
        allAreHere.arrive_and_wait();
        connection.answer({.body = asked.target});
    });
    std::vector<std::future<URLResponse>> transfers;
    for (std::size_t index = 0; index < count; ++index)
        transfers.push_back(std::async(std::launch::async,
            [this, index] { return get(request("https://example.test/" + std::to_string(index))); }));
    for (std::size_t index = 0; index < count; ++index)
        EXPECT_EQ(transfers[index].get().body, "/" + std::to_string(index));
}

} // namespace skyvane::test
