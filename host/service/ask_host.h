#pragma once

#include "desk/bus/host_interface.h"

#include <functional>
#include <stdexcept>
#include <string>

namespace skyvane {

/// There is no running host, or it refused; what() says why.
struct HostError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// One call of a method of the host.
using HostCall = std::function<QDBusPendingReply<QString>(HostInterface&)>;

/// Calls the session's running host and returns its answer. Throws `HostError`.
std::string askHost(const QDBusConnection& bus, const HostCall& call);

} // namespace skyvane
