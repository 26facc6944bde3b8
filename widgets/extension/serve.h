#pragma once

#include "platform/net/url_session.h"

/// The widget extension: answers a host's questions as docs/protocol.md has it.
namespace skyvane::Extension {

struct Services {
    Transport transport;
};

/// Serves until the end of the input, then cancels what still runs and returns 0; returns 1 when nobody reads
/// the output any more. The process must ignore SIGPIPE. The descriptors stay open.
int serve(int input, int output, const Services& services);

} // namespace skyvane::Extension
