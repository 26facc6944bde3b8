#pragma once

#include <optional>
#include <string_view>

namespace skyvane::JSON {

/// How the object's member stands in its text, quotes and all; the first of that key, absent when there is
/// none. `object` is the text of one whole object that a `Document` was made of.
std::optional<std::string_view> memberSource(std::string_view object, std::string_view key);

} // namespace skyvane::JSON
