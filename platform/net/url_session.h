#pragma once

#include "platform/net/transfer_error.h"
#include "platform/net/url.h"

#include <chrono>
#include <functional>
#include <memory>
#include <stop_token>
#include <string>
#include <vector>

namespace skyvane {

struct HTTPHeader {
    std::string name;
    std::string value;

    bool operator==(const HTTPHeader&) const = default;
};

/// One GET.
struct URLRequest {
    URL url;
    std::chrono::milliseconds timeout{
        std::chrono::seconds{8}}; ///< For the whole transfer, name look-up included.
    std::vector<HTTPHeader> headers{}; ///< A User-Agent here replaces the session's own.

    bool operator==(const URLRequest&) const = default;
};

/// A complete answer, whatever its status.
struct URLResponse {
    int status;
    std::string body; ///< Decompressed.

    bool operator==(const URLResponse&) const = default;
};

/// How a client reaches its server: a `UrlSession`, or a test's own. One GET, waited for; may run on many
/// threads at once. Throws `CancellationError` at once when the stop token asks for it, `TransferError` on
/// every other failure.
using Transport = std::function<URLResponse(const URLRequest&, std::stop_token)>;

/// Where tests send every request of this process instead of the real hosts. Pinned with `Pinned<Network>`.
struct Network {
    std::string authorityFile; ///< PEM file of the only certificate authority that is trusted.
    std::string authorityFolder{}; ///< The same as a folder of hashed names, which is looked into first.
    std::vector<std::string> connectTo{}; ///< "host:port:connect-to-host:connect-to-port" each.
};

class RestingConnection;

/// The one way out of this machine, a `Transport`: HTTPS with certificates verified against the system's
/// authorities, redirects to HTTPS only, compressed answers accepted, at most 8 seconds and 8 MiB
/// (decompressed) a transfer. A certificate that the folder of single authorities does not vouch for is
/// tried once more with the bundle of all. The last
/// connection stays open, to serve the next request if that goes to the same host within 30 seconds; copies
/// of a session share it.
class UrlSession {
public:
    UrlSession();

    URLResponse operator()(const URLRequest& request, const std::stop_token& stop) const;

private:
    std::shared_ptr<RestingConnection> m_connection;
};

} // namespace skyvane
