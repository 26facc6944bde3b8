#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace skyvane {

/// The container formats of photographs, walked without decoding anything: what is not pixels (texts, colour
/// profiles, previews, remarks) never reaches a decoder, which would unpack and keep it whatever its size.
namespace PhotoFile {

inline constexpr std::size_t largest = std::size_t{1} << 20; ///< Bytes of a whole file.
inline constexpr std::uint32_t longestSide = 4096; ///< Pixels.
inline constexpr int mostScans = 64; ///< Of a JPEG. Each may cost as much as the whole picture.

/// The file with nothing but what its pixels need, by its own first bytes JPEG, PNG or WebP. Absent for
/// everything else: another format, one cut short, one that moves, or one beyond the limits above.
std::optional<std::string> stripped(std::string_view bytes);

} // namespace PhotoFile

} // namespace skyvane
