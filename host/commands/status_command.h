#pragma once

#include "host/commands/command.h"

namespace skyvane {

/// "status": what protects the desktop from what strangers send.
Command statusCommand();

} // namespace skyvane
