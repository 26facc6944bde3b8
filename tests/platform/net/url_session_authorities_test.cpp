#include "tests/platform/net/url_session_fixture.h"

#include "platform/net/authorities.h"

#include <filesystem>
#include <optional>
#include <stop_token>
#include <string>

namespace skyvane::test {

namespace {

/// A folder of authorities and a bundle, each with the server's or with a stranger's only.
class UrlSessionAuthorities : public UrlSessionTest {
protected:
    UrlSessionAuthorities()
    {
        std::filesystem::create_directory(folder);
        server.answer("/", {.body = "here"});
    }

    void trust(const std::string& bundle, const std::string& certificates)
    {
        Network wanted = server.network();
        wanted.authorityFile = bundle;
        wanted.authorityFolder = certificates;
        trusted.reset();
        trusted.emplace(wanted);
    }

    const std::filesystem::path folder = scratch.path() / "certificates";
    const CertificateAuthority stranger{scratch.path() / "stranger.pem"};
    std::optional<Pinned<Network>> trusted;
};

} // namespace

TEST(Authorities, areTheSystemsWhereNoTestHasItsOwn)
{
    const Authorities known = Authorities::current();
    EXPECT_FALSE(known.folder.empty() && known.bundle.empty());
}

TEST_F(UrlSessionAuthorities, oneInTheFolderIsFoundThereWithoutTheBundle)
{
    authority.linkIn(folder);
    for (const std::filesystem::path& bundle : {authority.file(), stranger.file(), scratch.path() / "none"}) {
        session = {};
        trust(bundle, folder);
        EXPECT_EQ(get().body, "here") << bundle;
    }
    EXPECT_EQ(server.connectionCount(), 3U);
}

TEST_F(UrlSessionAuthorities, oneInTheBundleAloneIsFoundAtTheSecondTry)
{
    for (const std::filesystem::path& certificates : {folder, scratch.path() / "none"}) {
        session = {};
        trust(authority.file(), certificates);
        EXPECT_EQ(get().body, "here") << certificates;
    }
    EXPECT_EQ(server.connectionCount(), 4U);
    EXPECT_EQ(server.requests().size(), 2U);
}

TEST_F(UrlSessionAuthorities, aSystemWithoutAFolderHasItsBundle)
{
    trust(authority.file(), "");
    EXPECT_EQ(get().body, "here");
    EXPECT_EQ(server.connectionCount(), 1U);
}

TEST_F(UrlSessionAuthorities, oneInNeitherIsTriedTwiceAndRefused)
{
    stranger.linkIn(folder);
    trust(stranger.file(), folder);
    EXPECT_THAT(failure(), HasSubstr("certificate"));
    EXPECT_EQ(server.connectionCount(), 2U);
    trust(scratch.path() / "none", scratch.path() / "none");
    EXPECT_NE(failure(), "");
    EXPECT_EQ(server.requests().size(), 0U);
}

TEST_F(UrlSessionAuthorities, noOtherCheckIsWeakerForIt)
{
    authority.linkIn(folder);
    trust(authority.file(), folder);
    server.present("example.test", authority.issueExpired({"example.test"}));
    EXPECT_THAT(failure(), HasSubstr("expired"));
    server.present("example.test", CertificateAuthority::selfSigned({"example.test"}));
    EXPECT_THAT(failure(), HasSubstr("self-signed"));
    server.present("example.test", authority.issue({"other.test"}));
    EXPECT_THAT(failure(), HasSubstr("example.test"));
    EXPECT_EQ(server.requests().size(), 0U);
}

TEST_F(UrlSessionAuthorities, aConnectionOfTheSecondTryServesTheNextRequest)
{
    trust(authority.file(), folder);
    EXPECT_EQ(get().body, "here");
    EXPECT_EQ(get().body, "here");
    EXPECT_EQ(server.connectionCount(), 2U);
}

TEST_F(UrlSessionAuthorities, aConnectionThatIsRefusedIsTriedOnce)
{
    authority.linkIn(folder);
    trust(authority.file(), folder);
    server.greet([](Connection& connection) { connection.reset(); });
    EXPECT_NE(failure(), "");
    EXPECT_EQ(server.connectionCount(), 1U);
}

TEST_F(UrlSessionAuthorities, bothTriesTogetherTakeNoLongerThanOneMay)
{
    using std::chrono::steady_clock;
    trust(authority.file(), folder);
    server.greet([this](Connection& connection) {
        if (server.connectionCount() == 1)
            connection.pause(600ms);
        else
            connection.stall();
    });
    URLRequest wanted = request();
    wanted.timeout = 1s;
    const auto start = steady_clock::now();
    EXPECT_NE(failure(wanted), "");
    EXPECT_LT(steady_clock::now() - start, 1500ms);
    EXPECT_EQ(server.connectionCount(), 2U);
}

TEST_F(UrlSessionAuthorities, theSecondTryIsCancelledAtOnce)
{
    trust(authority.file(), folder);
    std::stop_source stop;
    server.greet([&](Connection& connection) {
        if (server.connectionCount() < 2)
            return;
        stop.request_stop();
        connection.stall();
    });
    EXPECT_THROW(session(request(), stop.get_token()), CancellationError);
    EXPECT_EQ(server.connectionCount(), 2U);
}

} // namespace skyvane::test
