#pragma once

#include "platform/files/files.h"

namespace skyvane::Files {

/// The file in which the user's configuration stands: the companion writes it, the widgets read it, the host
/// watches it. Its folder may not be there.
std::filesystem::path configurationFile(const std::filesystem::path& home = homeFolder());

} // namespace skyvane::Files
