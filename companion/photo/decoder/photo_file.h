#pragma once

#include "companion/photo/limits.h"

#include <optional>
#include <string>
#include <string_view>

namespace skyvane {

/// The container formats of photographs, walked without decoding anything: what is not pixels (texts, colour
/// profiles, previews, remarks) never reaches a decoder, which would unpack and keep it whatever its size.
namespace PhotoFile {

/// The file with nothing but what its pixels need, by its own first bytes JPEG, PNG or WebP. Absent for
/// everything else: another format, one cut short, one that moves, or one beyond the limits.
std::optional<std::string> stripped(std::string_view bytes);

} // namespace PhotoFile

} // namespace skyvane
