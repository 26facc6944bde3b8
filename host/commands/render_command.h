#pragma once

#include "host/commands/command.h"
#include "paint/render.h"

#include <filesystem>

namespace skyvane {

/// The picture could not be written; what() says why.
struct OutputError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

enum class PictureFormat { png, svg };

/// What "render" is asked for.
struct RenderWords {
    std::string kind; ///< In full, or its last component.
    WidgetFamily family;
    std::optional<std::filesystem::path> output{};
    PictureFormat format = PictureFormat::png; ///< By the output's ending.
    double scale = 1; ///< Pixels a point, up to 8.
    bool isSample = false;
    Corners corners = Corners::round;

    /// Throws `UsageError`.
    static RenderWords read(const Arguments& arguments);

    bool operator==(const RenderWords&) const = default;
};

/// The command that paints one widget into one file. It throws `UsageError` for a widget that there is not,
/// `ExtensionError` and `OutputError`, and needs a QGuiApplication.
Command renderCommand();

} // namespace skyvane
