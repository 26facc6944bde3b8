#pragma once

#include "host/extension/client.h"

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

namespace skyvane {

/// Where a command prints.
struct Streams {
    std::ostream& out;
    std::ostream& error;
};

/// Runs the command that the words after the program's name ask for. Returns the exit status: 0, 1 for a
/// failure, 2 for words that make no sense; the last two come with one line on `error`, or with the usage
/// where there are no words at all. `turn`: the file on which the user's programs agree who asks the sources;
/// empty for one that asks nobody first. Needs a QGuiApplication.
int runCommand(const std::vector<std::string>& words, const ExtensionProgram& extension, Streams streams,
    const std::filesystem::path& turn = {});

} // namespace skyvane
