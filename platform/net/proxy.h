#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace skyvane {

/// The proxy that HTTPS goes through.
struct Proxy {
    std::string url; ///< As the library takes it; a SOCKS proxy is always asked to look names up itself.
    std::string host; ///< A name or an address, without brackets; empty where `url` makes no sense.
    std::uint16_t port;

    /// The one that the environment names (https_proxy, HTTPS_PROXY, all_proxy, ALL_PROXY); absent without.
    static std::optional<Proxy> ofEnvironment();
};

} // namespace skyvane
