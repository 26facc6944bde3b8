#pragma once

#include "platform/net/dialer.h"
#include "platform/net/transport.h"

#include <memory>

namespace skyvane {

/// The one way out of this machine, a `Transport`: HTTPS with certificates verified against the system's
/// authorities, redirects to HTTPS only, compressed answers accepted, at most 8 seconds and 8 MiB
/// (decompressed) a transfer. A certificate that the folder of single authorities does not vouch for is
/// tried once more with the bundle of all. Keep-alive: the last connection stays open, to serve the next
/// request if that goes to the same host within 30 seconds; copies of a session share it. Of the transfers
/// that run at once, only as many compute as there are processors: what cancels the others is heard at once.
class UrlSession {
public:
    UrlSession();
    /// Has its connections from there, to port 443 alone.
    explicit UrlSession(Dialer dialer);

    URLResponse operator()(const URLRequest& request, const std::stop_token& stop) const;

private:
    struct Shared;

    std::shared_ptr<Shared> m_shared;
};

} // namespace skyvane
