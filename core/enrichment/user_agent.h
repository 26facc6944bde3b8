#pragma once

#include "platform/net/transport.h"

namespace skyvane {

/// How the route and photo clients introduce themselves: "Skyvane/1.1 (+mailto:…)", whatever version this is;
/// services may know them by it. Replaces the session's own.
HTTPHeader userAgent();

} // namespace skyvane
