#pragma once

#include <cstddef>
#include <string>

namespace skyvane::Unicode {

/// User-perceived characters that a text from a stranger is shown with at most.
inline constexpr std::size_t longestShown = 256;

/// A text that is longer ends with "…" as its last character, so that it has `most` (at least one) in all.
/// As a single character can have any number of marks, the text has at most 32 bytes for each of them, too.
std::string atMost(std::string text, std::size_t most = longestShown);

} // namespace skyvane::Unicode
