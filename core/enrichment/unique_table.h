#pragma once

#include <cstddef>
#include <cstdlib>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>

namespace skyvane {

/// One line of a built-in list.
struct TableRow {
    std::string_view key;
    std::string_view value;
};

/// Lets a table be asked with any kind of text, without making a string of it first.
struct TextHash {
    using is_transparent = void;

    std::size_t operator()(std::string_view text) const noexcept
    {
        return std::hash<std::string_view>{}(text);
    }
};

using TextTable = std::unordered_map<std::string, std::string, TextHash, std::equal_to<>>;

/// A repeated key is a programming error: the process stops rather than choosing a winner.
inline TextTable uniqueTable(std::span<const TableRow> rows)
{
    TextTable table;
    table.reserve(rows.size());
    for (const TableRow& row : rows) {
        if (!table.try_emplace(std::string{row.key}, row.value).second)
            std::abort();
    }
    return table;
}

/// Owned by the table.
inline std::optional<std::string_view> valueIn(const TextTable& table, std::string_view key)
{
    const auto row = table.find(key);
    if (row == table.end())
        return std::nullopt;
    return row->second;
}

} // namespace skyvane
