#pragma once

#include "ui/layout/widget_container.h"

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

namespace skyvane {

/// The words of the command line make no sense; what() says which.
struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

enum class PictureFormat { png, svg };

/// "render": one widget into one file.
struct RenderWords {
    std::string kind; ///< In full, or its last component.
    WidgetFamily family;
    std::optional<std::filesystem::path> output{};
    PictureFormat format = PictureFormat::png; ///< By the output's ending.
    double scale = 1; ///< Pixels a point, up to 8.
    bool isSample = false;

    bool operator==(const RenderWords&) const = default;
};

/// "list": the widgets that there are.
struct ListWords {
    bool operator==(const ListWords&) const = default;
};

/// "list --placed": those that stand on the desktop.
struct PlacedWords {
    bool operator==(const PlacedWords&) const = default;
};

/// "add": one more on the desktop.
struct AddWords {
    std::string kind; ///< In full, or its last component.
    WidgetFamily family;

    bool operator==(const AddWords&) const = default;
};

/// "remove": one from the desktop.
struct RemoveWords {
    int widget; ///< Its number among the placed ones.

    bool operator==(const RemoveWords&) const = default;
};

struct RefreshWords {
    bool operator==(const RefreshWords&) const = default;
};

struct QuitWords {
    bool operator==(const QuitWords&) const = default;
};

struct HelpWords {
    bool operator==(const HelpWords&) const = default;
};

struct VersionWords {
    bool operator==(const VersionWords&) const = default;
};

using Command = std::variant<RenderWords, ListWords, PlacedWords, AddWords, RemoveWords, RefreshWords,
    QuitWords, HelpWords, VersionWords>;

/// The words after the program's name, at least one. Throws `UsageError`.
Command parseCommandLine(const std::vector<std::string>& words);

std::string usage();

} // namespace skyvane
