#pragma once

#include "host/commands/command_line.h"
#include "host/extension/client.h"

#include <filesystem>
#include <stdexcept>

namespace skyvane {

/// The picture could not be written; what() says why.
struct OutputError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Writes the picture, whole or not at all, and returns its file. Throws `UsageError` for a widget that there
/// is not, `ExtensionError` and `OutputError`. Needs a QGuiApplication.
std::filesystem::path renderWidget(const RenderWords& words, ExtensionClient& extension);

} // namespace skyvane
