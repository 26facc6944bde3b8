#pragma once

#include <algorithm>
#include <string>

namespace skyvane {

/// Text from elsewhere, safe to print: control characters become blanks.
inline std::string oneLine(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](char byte) { return (byte >= 0 && byte < ' ') || byte == '\x7f'; }, ' ');
    return text;
}

} // namespace skyvane
