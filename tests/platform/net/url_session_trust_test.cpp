#include "tests/platform/net/url_session_fixture.h"

#include <string>

namespace skyvane::test {

TEST_F(UrlSessionTest, followsARedirectToAnotherHost)
{
    server.answer(
        "/", {.status = 301, .headers = {{.name = "Location", .value = "https://other.test/there"}}});
    server.answer("/there", {.body = "here"});
    EXPECT_EQ(get(), (URLResponse{.status = 200, .body = "here"}));
    EXPECT_EQ(server.requests().at(1).header("Host"), "other.test");
}

TEST_F(UrlSessionTest, refusesARedirectToPlainHTTP)
{
    server.answer("/", {.status = 302, .headers = {{.name = "Location", .value = "http://other.test/"}}});
    EXPECT_THAT(failure(), HasSubstr("http"));
    EXPECT_EQ(server.requests().size(), 1U);
}

TEST_F(UrlSessionTest, refusesARedirectToAFile)
{
    server.answer("/", {.status = 302, .headers = {{.name = "Location", .value = "file:///etc/hostname"}}});
    EXPECT_THAT(failure(), HasSubstr("file"));
}

TEST_F(UrlSessionTest, followsTenRedirectsAndNoMore)
{
    server.handle("/", [](const RecordedRequest& asked, Connection& connection) {
        const int left = std::stoi(asked.target.substr(1));
        if (left == 0)
            return connection.answer({.body = "the end"});
        connection.answer(
            {.status = 302, .headers = {{.name = "Location", .value = "/" + std::to_string(left - 1)}}});
    });
    EXPECT_EQ(get(request("https://example.test/10")).body, "the end");
    EXPECT_NE(failure(request("https://example.test/11")), "");
}

TEST_F(UrlSessionTest, endsARedirectLoop)
{
    server.answer("/", {.status = 302, .headers = {{.name = "Location", .value = "/"}}});
    EXPECT_THAT(failure(), HasSubstr("redirects"));
    EXPECT_EQ(server.requests().size(), 11U);
}

TEST_F(UrlSessionTest, asksOverHTTPSOnly)
{
    for (const char* text :
        {"http://example.test/", "file:///etc/hostname", "ftp://example.test/", "example.test/", "/", "#"})
        EXPECT_NE(failure(request(text)), "") << text;
    EXPECT_EQ(server.connectionCount(), 0U);
}

TEST_F(UrlSessionTest, refusesAnExpiredCertificate)
{
    server.present("example.test", authority.issueExpired({"example.test"}));
    EXPECT_THAT(failure(), HasSubstr("expired"));
}

TEST_F(UrlSessionTest, refusesASelfSignedCertificate)
{
    server.present("example.test", CertificateAuthority::selfSigned({"example.test"}));
    EXPECT_THAT(failure(), HasSubstr("self-signed"));
}

TEST_F(UrlSessionTest, refusesACertificateOfAnUnknownAuthority)
{
    const CertificateAuthority stranger{scratch.path() / "stranger.pem"};
    server.present("example.test", stranger.issue({"example.test"}));
    EXPECT_THAT(failure(), HasSubstr("certificate"));
}

TEST_F(UrlSessionTest, refusesACertificateForAnotherName)
{
    server.present("example.test", authority.issue({"other.test", "www.example.test"}));
    EXPECT_THAT(failure(), HasSubstr("example.test"));
    EXPECT_EQ(server.requests().size(), 0U);
}

TEST_F(UrlSessionTest, refusesACertificateForAnotherNameOfAServerThatItKnows)
{
    server.handle("/", [](const auto&, Connection& connection) {
        connection.answer({.headers = {{.name = "Connection", .value = "close"}}, .body = "here"});
        connection.close();
    });
    EXPECT_EQ(get().body, "here");
    server.present("example.test", authority.issue({"other.test"}));
    EXPECT_THAT(failure(), HasSubstr("example.test"));
    EXPECT_EQ(server.requests().size(), 1U);
}

TEST_F(UrlSessionTest, everyConnectionIsShownACertificate)
{
    server.handle("/", [](const auto&, Connection& connection) {
        connection.answer({.headers = {{.name = "Connection", .value = "close"}},
            .body = connection.resumesSession() ? "resumed" : "shown"});
        connection.close();
    });
    EXPECT_EQ(get().body, "shown");
    EXPECT_EQ(get().body, "shown");
    EXPECT_EQ(server.connectionCount(), 2U);
}

TEST_F(UrlSessionTest, aHostOutsideThePinnedNetworkIsNeverReached)
{
    EXPECT_NE(failure(request("https://stranger.test/")), "");
    EXPECT_NE(failure(request("https://example.test:8443/")), "");
    EXPECT_NE(failure(request("https://192.0.2.1/")), "");
    EXPECT_EQ(server.connectionCount(), 0U);
}

} // namespace skyvane::test
