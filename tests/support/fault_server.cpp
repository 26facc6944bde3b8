#include "tests/support/fault_server.h"
#include "platform/net/url_session.h"

#include <algorithm>
#include <map>

namespace skyvane::test {

namespace {

std::string hostOf(const Fault& fault)
{
    std::string host = fault.name + ".test";
    std::ranges::transform(host, host.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return host;
}

ServerCertificate certificateOf(
    const Fault& fault, const CertificateAuthority& authority, const std::string& host)
{
    switch (fault.certificate) {
    case Fault::Certificate::expired:
        return authority.issueExpired({host});
    case Fault::Certificate::selfSigned:
        return CertificateAuthority::selfSigned({host});
    case Fault::Certificate::forAnotherName:
        return authority.issue({"another.test"});
    case Fault::Certificate::good:
        break;
    }
    return authority.issue({host});
}

} // namespace

FaultServer::FaultServer(const CertificateAuthority& authority, const std::vector<Fault>& faults)
{
    std::vector<std::string> hosts;
    std::map<std::string, HttpsServer::Handler> handlers;
    for (const Fault& fault : faults) {
        if (!fault.handler)
            continue;
        const std::string host = hostOf(fault);
        if (fault.greeting) {
            m_servers.push_back(std::make_unique<HttpsServer>(authority, std::vector{host}));
            goWrong(*m_servers.back(), authority, host, fault);
        } else {
            hosts.push_back(host);
            handlers.emplace(host, fault.handler);
        }
    }
    auto common = std::make_unique<HttpsServer>(authority, hosts);
    common->handle("/", [handlers](const RecordedRequest& asked, Connection& connection) {
        handlers.at(asked.header("Host").value())(asked, connection);
    });
    for (const Fault& fault : faults) {
        if (fault.certificate != Fault::Certificate::good)
            common->present(hostOf(fault), certificateOf(fault, authority, hostOf(fault)));
    }
    m_servers.push_back(std::move(common));
}

Network FaultServer::network() const
{
    Network whole = m_servers.front()->network();
    whole.connectTo.clear();
    for (const auto& server : m_servers) {
        const Network part = server->network();
        whole.connectTo.insert(whole.connectTo.end(), part.connectTo.begin(), part.connectTo.end());
    }
    return whole;
}

Transport FaultServer::towards(const Fault& fault)
{
    return [base = "https://" + hostOf(fault) + "/"](URLRequest request, const std::stop_token& stop) {
        if (request.url.text().find("api.adsb.lol") == std::string::npos)
            request.url = URL::parse(base).value();
        return UrlSession{}(request, stop);
    };
}

void goWrong(
    HttpsServer& server, const CertificateAuthority& authority, const std::string& host, const Fault& fault)
{
    server.greet(fault.handler ? fault.greeting : &Connection::reset);
    if (fault.handler)
        server.handle("/", fault.handler);
    server.present(host, certificateOf(fault, authority, host));
    server.hangUp();
}

} // namespace skyvane::test
