#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace skyvane {

/// What stands between the separators of an address; of one without, the whole.
inline std::vector<std::string_view> parts(std::string_view text, char separator)
{
    std::vector<std::string_view> list;
    while (true) {
        const std::size_t end = text.find(separator);
        list.push_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return list;
        text.remove_prefix(end + 1);
    }
}

} // namespace skyvane
