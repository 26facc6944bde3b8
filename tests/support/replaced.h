#pragma once

#include <string>

namespace skyvane::test {

/// The text with the first `old` in it made `now`.
inline std::string replaced(std::string text, const std::string& old, const std::string& now)
{
    return text.replace(text.find(old), old.size(), now);
}

} // namespace skyvane::test
