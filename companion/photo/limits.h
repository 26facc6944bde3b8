#pragma once

#include <cstddef>
#include <cstdint>

/// What a photograph may have at most.
namespace skyvane::PhotoFile {

inline constexpr std::size_t largest = std::size_t{1} << 20; ///< Bytes of a whole file.
inline constexpr std::uint32_t longestSide = 4096; ///< Pixels.
inline constexpr int mostScans = 64; ///< Of a JPEG. Each may cost as much as the whole picture.

} // namespace skyvane::PhotoFile
