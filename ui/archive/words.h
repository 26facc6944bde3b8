#pragma once

#include "ui/tree/alignment.h"
#include "ui/tree/font.h"

#include <array>
#include <optional>
#include <string_view>
#include <utility>

/// The words that an archive has for enumerated values.
namespace skyvane::Words {

template <class Value, std::size_t count>
using Table = std::array<std::pair<Value, std::string_view>, count>;

inline constexpr Table<FontWeight, 3> weights{{
    {FontWeight::regular, "regular"},
    {FontWeight::semibold, "semibold"},
    {FontWeight::bold, "bold"},
}};

inline constexpr Table<FontDesign, 2> designs{{
    {FontDesign::standard, "default"},
    {FontDesign::monospaced, "monospaced"},
}};

inline constexpr Table<TextStyle, 3> styles{{
    {TextStyle::title3, "title3"},
    {TextStyle::caption, "caption"},
    {TextStyle::caption2, "caption2"},
}};

inline constexpr Table<HorizontalAlignment, 3> horizontal{{
    {HorizontalAlignment::leading, "leading"},
    {HorizontalAlignment::center, "center"},
    {HorizontalAlignment::trailing, "trailing"},
}};

inline constexpr Table<VerticalAlignment, 3> vertical{{
    {VerticalAlignment::top, "top"},
    {VerticalAlignment::center, "center"},
    {VerticalAlignment::bottom, "bottom"},
}};

inline constexpr Table<Alignment, 9> alignments{{
    {Alignment::topLeading, "topLeading"},
    {Alignment::top, "top"},
    {Alignment::topTrailing, "topTrailing"},
    {Alignment::leading, "leading"},
    {Alignment::center, "center"},
    {Alignment::trailing, "trailing"},
    {Alignment::bottomLeading, "bottomLeading"},
    {Alignment::bottom, "bottom"},
    {Alignment::bottomTrailing, "bottomTrailing"},
}};

/// Every value has a word.
template <class Value, std::size_t count>
constexpr std::string_view wordFor(const Table<Value, count>& table, const Value& value)
{
    for (const auto& [known, word] : table) {
        if (known == value)
            return word;
    }
    return {};
}

template <class Value, std::size_t count>
constexpr std::optional<Value> valueOf(const Table<Value, count>& table, std::string_view word)
{
    for (const auto& [value, known] : table) {
        if (known == word)
            return value;
    }
    return std::nullopt;
}

} // namespace skyvane::Words
