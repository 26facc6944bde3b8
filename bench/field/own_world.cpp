#include "bench/field/own_world.h"

#include "bench/synthetic_sky.h"
#include "tests/support/service_hosts.h"

#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <fstream>
#include <string>

namespace skyvane::bench {

namespace {

constexpr std::string_view configuration
    = R"({"home":{"latitude":51.5,"longitude":-0.12,"label":"Home"},"radiusNM":250,"distanceUnit":"km"})";

/// Each another, so that everything has to be painted anew, and all of one size.
std::vector<test::Answer> changingSkies()
{
    constexpr unsigned count = 8;
    std::vector<test::Answer> skies(count);
    std::size_t longest = 0;
    for (unsigned moment = 0; moment < count; ++moment) {
        skies[moment].body = syntheticAnswer(700, moment);
        longest = std::max(longest, skies[moment].body.size());
    }
    for (test::Answer& sky : skies)
        sky.body.resize(longest, ' ');
    return skies;
}

} // namespace

OwnWorld::OwnWorld()
{
    std::signal(SIGPIPE, SIG_IGN);
    const std::filesystem::path home = m_folder.path() / "home";
    const std::filesystem::path folder = home / "Library/Application Support/Skyvane";
    std::filesystem::create_directories(folder);
    std::ofstream{folder / "widget-config.json"} << configuration;

    const std::string user = std::to_string(getuid()) + ":" + std::to_string(getgid());
    bind("/etc/passwd", "bench:x:" + user + "::" + home.string() + ":/bin/sh\n");
    std::string names = "127.0.0.1 localhost";
    for (const std::string& host : test::feedHosts())
        names += " " + host;
    bind("/etc/hosts", names + "\n");
    bind("/etc/nsswitch.conf", "passwd: files\nhosts: files\n");
    const std::filesystem::path certificates = m_folder.path() / "certs";
    std::filesystem::copy("/etc/ssl/certs", certificates);
    m_files.push_back({.path = "/etc/ssl/certs", .standIn = certificates});
    test::enterOwnNamespaces(m_files);

    // In the folder itself: the extension reads no file elsewhere, link or not.
    const test::CertificateAuthority authority{certificates / "bench.pem"};
    authority.linkIn(certificates);
    std::ofstream{certificates / "ca-certificates.crt", std::ios::app}
        << std::ifstream{authority.file()}.rdbuf();
    m_server = std::make_unique<test::HttpsServer>(authority, test::feedHosts(), std::uint16_t{443});
    const std::vector<test::Answer> skies = changingSkies();
    m_answerSize = test::head(skies[0]).size() + skies[0].body.size();
    m_server->handle("/v2/point/", [this, skies](const test::RecordedRequest&, test::Connection& connection) {
        connection.answer(skies[m_requests++ % skies.size()]);
    });
}

Traffic OwnWorld::traffic() const
{
    const auto requests = static_cast<double>(m_requests);
    return {.requests = requests, .bytes = requests * static_cast<double>(m_answerSize)};
}

void OwnWorld::bind(const std::string& file, const std::string& content)
{
    const std::filesystem::path standIn = m_folder.path() / std::filesystem::path{file}.filename();
    std::ofstream{standIn} << content;
    m_files.push_back({.path = file, .standIn = standIn});
}

} // namespace skyvane::bench
