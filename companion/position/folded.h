#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Names made comparable.
namespace skyvane::Folded {

/// Small letters without marks, single blanks in place of all that is neither letter nor digit. UTF-8.
std::string text(std::string_view name);

/// The same with German umlauts written out, "muenchen" for "München"; empty where it has none.
std::string writtenOut(std::string_view name);

std::vector<std::string_view> words(std::string_view folded);

/// Whether one character too many, too few, wrong, or two in the wrong order, is all that parts them; also
/// when nothing does.
bool isNearly(std::string_view one, std::string_view other);

} // namespace skyvane::Folded
