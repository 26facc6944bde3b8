#pragma once

#include "platform/net/proxy.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <stop_token>
#include <string>

namespace skyvane {

/// Where a TCP connection leads.
struct Destination {
    std::string host; ///< A name or an address.
    std::uint16_t port;

    bool operator==(const Destination&) const = default;
};

/// Makes connections for a session whose own process may look up no name and open no socket.
struct Dialer {
    /// A connected socket, the caller's from then on. Throws as a `Transport` does: `TransferError`, after
    /// the deadline, too, and `CancellationError` at once when the stop token asks for it.
    std::function<int(const Destination&, std::chrono::steady_clock::time_point deadline, std::stop_token)>
        dial;
    std::optional<Proxy> proxy{}; ///< Dialled in place of the hosts that the environment does not except.
};

} // namespace skyvane
