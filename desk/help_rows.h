#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace skyvane {

/// A word of a command line and what it means, as --help explains it.
struct HelpRow {
    std::string_view name;
    std::string_view help;
};

/// The rows as lines of text, indented by so many blanks, their meanings in one column.
inline std::string helpRows(const std::vector<HelpRow>& rows, std::size_t indentation)
{
    constexpr std::size_t gap = 3;
    std::size_t width = 0;
    for (const HelpRow& row : rows)
        width = std::max(width, row.name.size());
    std::string text;
    for (const HelpRow& row : rows) {
        text.append(indentation, ' ').append(row.name);
        text.append(width - row.name.size() + gap, ' ').append(row.help).append("\n");
    }
    return text;
}

} // namespace skyvane
