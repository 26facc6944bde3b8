#pragma once

#include "platform/net/transport.h"

/// The widget extension: answers a host's questions as docs/protocol.md has it.
namespace skyvane::Extension {

struct Services {
    Transport transport;
};

/// Serves until the end of the input, or until nobody reads the output any more; then cancels what still
/// runs. The process must ignore SIGPIPE. The descriptors stay open.
void serve(int input, int output, const Services& services);

} // namespace skyvane::Extension
