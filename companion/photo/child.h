#pragma once

#include "companion/photo/pixels.h"

#include <filesystem>
#include <optional>
#include <stop_token>
#include <string_view>

namespace skyvane {

/// Has a photograph's file decoded by `program` in a child process, which is given the file as its standard
/// input and nothing else: no other descriptor, no environment. Absent for what is no photograph, where the
/// program is missing, and after ten seconds. At once, and the child with it, when `stop` asks for it. Any
/// thread may call it.
std::optional<Pixels> decodedInChild(
    const std::filesystem::path& program, std::string_view file, const std::stop_token& stop);

} // namespace skyvane
