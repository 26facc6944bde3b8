#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace skyvane {

/// What the program was started for.
struct CommandLine {
    bool showsSettings = false;
    bool showsAlerts = false;
    bool isService = false; ///< Started by the message bus: shows nothing until it is asked to.
    std::optional<std::string> link{}; ///< As it was typed, not checked.

    bool operator==(const CommandLine&) const = default;
};

/// What is to be printed instead of a start.
struct Printed {
    std::string text;
    bool isError; ///< Goes to standard error, and the exit status is 2.

    bool operator==(const Printed&) const = default;
};

/// Reads the words after the program's name.
std::variant<CommandLine, Printed> readCommandLine(const std::vector<std::string>& words);

} // namespace skyvane
