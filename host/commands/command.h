#pragma once

#include "host/extension/client.h"

#include <filesystem>
#include <iosfwd>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace skyvane {

/// The words of the command line make no sense; what() says which.
struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// What a command works with beside its words.
struct CommandContext {
    const ExtensionProgram& extension;
    std::ostream& out;
    std::filesystem::path turn{}; ///< The file by which programs take turns; empty: they do not.
};

/// The words after a command's name, sorted.
struct Arguments {
    std::vector<std::string> operands{}; ///< As many as the command has.
    std::map<std::string, std::string, std::less<>> options{}; ///< Value by name; empty for a switch.

    /// Absent when the option was not given.
    std::optional<std::string> option(std::string_view name) const;
};

/// A word that a shell may offer, and what it means.
struct Candidate {
    std::string word; ///< "*.png": files of such names.
    std::string meaning;
};

/// Throws `UsageError` for a word that makes no sense.
using WordCheck = void (*)(const std::string& word);

/// What may follow the words typed so far. May throw; then nothing is offered.
using Candidates = std::vector<Candidate> (*)(const Arguments& typed, const CommandContext& context);

/// A word that a command needs.
struct Operand {
    std::string_view name; ///< In the help: "KIND".
    std::string_view noun; ///< In the message that it is missing: "a kind".
    std::optional<std::string_view>
        help{}; ///< Its line in the help; absent where another command's explains it.
    WordCheck check = nullptr; ///< Once all operands are there.
    Candidates candidates = nullptr;
};

struct Option {
    std::string_view name; ///< "--scale".
    std::optional<std::string_view> value{}; ///< Its value in the help: "N"; absent: a switch.
    std::string_view help;
    WordCheck check = nullptr; ///< Of the value, as soon as it is read.
    Candidates candidates = nullptr;
};

/// One command of the program: usage, parsing, dispatch and completion are made of it.
struct Command {
    std::string_view name; ///< May be two words, "list --placed", and stands before the shorter one then.
    std::vector<Operand> operands{};
    std::vector<Option> options{};
    std::optional<std::string_view> help{}; ///< Its line in the help; absent where the name says it all.
    std::string_view meaning; ///< What a shell says about it in a completion.
    void (*run)(const Arguments& arguments, const CommandContext& context);
};

} // namespace skyvane
