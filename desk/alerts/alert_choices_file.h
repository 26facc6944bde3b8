#pragma once

#include "desk/alerts/alert_choices.h"

#include <filesystem>

/// The file of `AlertChoices`: the companion writes it, the host reads and watches it.
namespace skyvane::AlertChoicesFile {

/// Below the user's configuration folder.
std::filesystem::path standardPath();

/// Nothing is chosen by a file that is not there or not whole.
AlertChoices read(const std::filesystem::path& file);

/// All or nothing, the folder included. Whether it worked; if not, the old file stands.
bool write(const std::filesystem::path& file, const AlertChoices& choices);

} // namespace skyvane::AlertChoicesFile
