#pragma once

#include "host/commands/command.h"

namespace skyvane {

/// What a command line asks for.
struct CommandCall {
    const Command& command;
    Arguments arguments;
};

/// Reads the words after the program's name, at least one, by this table. Throws `UsageError`.
CommandCall parseCommandLine(const std::vector<Command>& table, const std::vector<std::string>& words);

/// The text of --help.
std::string usage(const std::vector<Command>& table);

/// A command's name as the words that are typed.
std::vector<std::string> nameWords(const Command& command);

} // namespace skyvane
