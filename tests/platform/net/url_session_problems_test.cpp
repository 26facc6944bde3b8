#include "tests/platform/net/url_session_fixture.h"

#include <set>
#include <string>

namespace skyvane::test {

namespace {

/// Every failure is told by its kind.
class UrlSessionProblems : public UrlSessionTest {
protected:
    std::optional<TransferProblem> problemTowards(const std::string& address) const
    {
        const Pinned<Network> elsewhere{
            {.authorityFile = authority.file(), .connectTo = {"example.test:443:" + address}}};
        return problem();
    }
};

} // namespace

TEST_F(UrlSessionProblems, onTheWayToTheServer)
{
    EXPECT_EQ(problemTowards(std::string(64, 'x') + ":443"), TransferProblem::nameUnknown);
    EXPECT_EQ(problemTowards("255.255.255.255:443"), TransferProblem::noRoute);
    EXPECT_EQ(problemTowards("127.0.0.1:1"), TransferProblem::refused);
}

TEST_F(UrlSessionProblems, ofAServerThatSaysNothing)
{
    server.handle("/", [](const auto&, Connection& connection) { connection.stall(); });
    URLRequest wanted = request();
    wanted.timeout = 300ms;
    EXPECT_EQ(problem(wanted), TransferProblem::timedOut);
}

TEST_F(UrlSessionProblems, ofCertificates)
{
    for (const ServerCertificate& certificate : {authority.issueExpired({"example.test"}),
             authority.issue({"other.test"}), CertificateAuthority::selfSigned({"example.test"})}) {
        server.present("example.test", certificate);
        EXPECT_EQ(problem(), TransferProblem::untrusted);
    }
}

TEST_F(UrlSessionProblems, ofTLS)
{
    server.greet([](Connection& connection) { connection.send("no TLS here\r\n"); });
    EXPECT_EQ(problem(), TransferProblem::insecure);
}

TEST_F(UrlSessionProblems, ofAConnectionThatIsLost)
{
    server.handle("/", [](const auto&, Connection& connection) { connection.reset(); });
    EXPECT_EQ(problem(), TransferProblem::cut);
    server.handle("/", [](const auto&, Connection& connection) {
        connection.send("HTTP/1.1 200 OK\r\nContent-Length: 20\r\n\r\nten bytes.");
        connection.close();
    });
    EXPECT_EQ(problem(), TransferProblem::cut);
}

TEST_F(UrlSessionProblems, ofAnAnswerWithoutEnd)
{
    for (const char* const beginning : {"HTTP/1.1 200 OK\r\n\r\n", "HTTP/1.1 200 OK\r\nX-Flood: "}) {
        server.handle("/", [=](const auto&, Connection& connection) {
            connection.send(beginning);
            for (const std::string piece(mebibyte, 'x'); true;)
                connection.send(piece);
        });
        EXPECT_EQ(problem(), TransferProblem::tooLarge) << beginning;
    }
}

TEST_F(UrlSessionProblems, ofAnAnswerThatIsNone)
{
    server.handle("/", [](const auto&, Connection& connection) {
        connection.send("220 ready\r\n");
        connection.close();
    });
    EXPECT_EQ(problem(), TransferProblem::unreadable);
    server.answer(
        "/", {.headers = {{.name = "Content-Encoding", .value = "gzip"}}, .body = "not compressed at all"});
    EXPECT_EQ(problem(), TransferProblem::unreadable);
}

TEST_F(UrlSessionProblems, ofRedirectsWithoutEnd)
{
    server.answer("/", {.status = 302, .headers = {{.name = "Location", .value = "/"}}});
    EXPECT_EQ(problem(), TransferProblem::other);
}

TEST(TransferError, saysInOneSentenceEachWhatHappened)
{
    std::set<std::string> sentences;
    for (int kind = 0; kind <= static_cast<int>(TransferProblem::other); ++kind) {
        const TransferError error{static_cast<TransferProblem>(kind), "SSL_ERROR_SYSCALL in a.test:443 \n"};
        EXPECT_EQ(error.details, "SSL_ERROR_SYSCALL in a.test:443");
        EXPECT_THAT(error.what(), testing::MatchesRegex("[A-Z][A-Za-z ';]+\\."));
        sentences.insert(error.what());
    }
    EXPECT_EQ(sentences.size(), 10U);
}

} // namespace skyvane::test
