#pragma once

#include "host/commands/command.h"

namespace skyvane {

/// "line": the nearest aircraft in one line, for status bars. Throws `ExtensionError`, after the line that
/// says so.
Command lineCommand();

} // namespace skyvane
