#pragma once

#include "tests/support/fault.h"

#include <memory>
#include <string>
#include <vector>

namespace skyvane::test {

/// Answers on this machine for one host a fault, all at once.
class FaultServer {
public:
    FaultServer(const CertificateAuthority& authority, const std::vector<Fault>& faults);

    /// To pin; every host that is no fault's refuses connections.
    Network network() const;

    /// Sends the requests for all services but the first aggregator to the fault's host.
    static Transport towards(const Fault& fault);

private:
    std::vector<std::unique_ptr<HttpsServer>> m_servers;
};

/// Makes a server go wrong in this way, and in no other any more, in what it does for this host.
void goWrong(
    HttpsServer& server, const CertificateAuthority& authority, const std::string& host, const Fault& fault);

} // namespace skyvane::test
