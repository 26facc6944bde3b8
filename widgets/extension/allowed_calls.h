#pragma once

#include "platform/sandbox/system_call_filter.h"

namespace skyvane::Extension {

/// The system calls of the decoder: what reading what it may read, answering, computing on threads and
/// talking over the connections that it is given come to. Everything else is `forTheRest`.
bool allowDecodersCallsOnly(SystemCallFilter::Answer forTheRest);

} // namespace skyvane::Extension
