#pragma once

#include "platform/net/transfer_error.h"
#include "platform/net/url.h"

#include <chrono>
#include <functional>
#include <optional>
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
        std::chrono::seconds{8}}; ///< Time-out of the whole transfer, name look-up included.
    std::vector<HTTPHeader> headers{}; ///< A User-Agent here replaces the session's own.

    bool operator==(const URLRequest&) const = default;
};

/// A complete answer, whatever its status.
struct URLResponse {
    int status;
    std::string body; ///< Decompressed.
    std::optional<std::chrono::seconds> retryAfter{}; ///< How long the server asks to be left alone.

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

} // namespace skyvane
