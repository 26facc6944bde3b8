#pragma once

#include "platform/net/dialer.h"

#include <sys/types.h>

#include <cstdint>
#include <vector>

/// The connector's own process.
namespace skyvane::Extension::Connecting {

/// What it is sent, with the channel for its reply.
struct Order {
    std::uint8_t destination; ///< Counted from 0.
};

/// What it replies, with the connected socket when nothing went wrong.
struct Reply {
    std::int32_t lookUp = 0; ///< One of getaddrinfo's errors, or 0.
    std::int32_t connection = 0; ///< An error of the system's, or 0.
};

/// Where it works.
struct Surroundings {
    int orders; ///< The channel; its end is the end.
    int input; ///< Of the process that gives the orders.
    pid_t client; ///< That process, the parent of this one.
};

[[noreturn]] void serve(const std::vector<Destination>& destinations, const Surroundings& surroundings);

} // namespace skyvane::Extension::Connecting
