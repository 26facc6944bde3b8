#pragma once

#include "host/commands/command.h"

namespace skyvane {

/// The program's commands, in the order of the help.
const std::vector<Command>& commands();

} // namespace skyvane
