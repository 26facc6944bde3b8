#pragma once

#include "platform/net/transfer_error.h"

#include <curl/curl.h>

namespace skyvane {

/// What the library's outcome of a transfer means; `systemError` is the errno of a connection that did not
/// come about, or 0.
TransferProblem problemOf(CURLcode outcome, long systemError);

} // namespace skyvane
