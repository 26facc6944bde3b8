#pragma once

#include "platform/text/at_most.h"

#include <cstddef>
#include <string>

/// Text from strangers made safe to show and to print: in labels, titles, terminals and journals.
namespace skyvane::Unicode {

/// Without what shows nothing and steers what is around it. Control characters (C0 and C1) become blanks, but
/// tabs; every kind of line break becomes "\n". Format characters are left out,
/// embeddings and overrides of direction among them, but joiners and marks of direction are not. Malformed
/// bytes and code points that are no character become U+FFFD.
std::string printable(std::string text);

/// The same without tabs and line breaks, and of at most so many user-perceived characters.
std::string oneLine(std::string text, std::size_t most = longestShown);

/// For a terminal or a journal, which take more than a label: a path may have 4,096 bytes.
inline constexpr std::size_t longestLine = 1024;

} // namespace skyvane::Unicode
