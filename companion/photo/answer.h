#pragma once

#include "companion/photo/pixels.h"

#include <optional>
#include <string>
#include <string_view>

namespace skyvane {

/// What the process that decodes photographs answers: width and height, each four bytes, the lowest first,
/// and then the pixels. For a file that is no photograph it answers nothing.
namespace PhotoAnswer {

inline constexpr std::uint32_t widest = 1260;
inline constexpr std::uint32_t highest = 840;
inline constexpr std::size_t largest = 8 + sizeof(Pixel) * widest * highest; ///< Bytes.

std::string encoded(const Pixels& pixels);

/// Absent for everything else: strangers' bytes may have made anything of the process.
std::optional<Pixels> decoded(std::string_view bytes);

} // namespace PhotoAnswer

} // namespace skyvane
