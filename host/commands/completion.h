#pragma once

#include "host/commands/command.h"

namespace skyvane {

/// Completion for shells: what may stand for the last of the words after the program's name, whatever has
/// been typed of it. A line a candidate, a tab before its meaning.
std::string completions(
    const std::vector<Command>& table, const std::vector<std::string>& words, const CommandContext& context);

} // namespace skyvane
