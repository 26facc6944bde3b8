#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace skyvane::test {

/// Keys with their texts; those that count have their forms separated by zeros.
using Entries = std::vector<std::pair<std::string, std::string>>;

enum class ByteOrder { little, big };

inline std::string number(std::size_t value, ByteOrder order)
{
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8)
        bytes += static_cast<char>(value >> shift);
    if (order == ByteOrder::big)
        std::ranges::reverse(bytes);
    return bytes;
}

/// As msgfmt(1) lays it out, without its table of hashes.
inline std::string compiled(const Entries& entries, ByteOrder order)
{
    const std::size_t head = 28;
    const std::size_t table = 8 * entries.size();
    std::string keys;
    std::string texts;
    std::string strings;
    const auto add = [&](std::string& entry, const std::string& text) {
        entry += number(text.size(), order) + number(head + 2 * table + strings.size(), order);
        strings += text + '\0';
    };
    for (const auto& [key, text] : entries) {
        add(keys, key);
        add(texts, text);
    }
    std::string bytes;
    for (const std::size_t value : {std::size_t{0x950412de}, std::size_t{0}, entries.size(), head,
             head + table, std::size_t{0}, head + 2 * table})
        bytes += number(value, order);
    return bytes + keys + texts + strings;
}

} // namespace skyvane::test
