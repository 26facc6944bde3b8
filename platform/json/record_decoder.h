#pragma once

#include "platform/json/decoder.h"
#include "platform/json/field_table.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

namespace skyvane::JSON {

template <class T>
concept Record = requires
{
    Fields<T>::list;
};

/// A record with a field table is read in one pass over the object. Unknown keys are passed over; of two
/// equal keys the first counts; null is absence.
template <Record T>
struct Decoder<T> {
    static T decode(Value value)
    {
        T record{};
        fill(record, value);
        return record;
    }

    /// Into a record with nothing in it yet.
    static void fill(T& record, Value value)
    {
        std::uint64_t seen = 0;
        std::uint64_t missing = required;
        for (const auto [key, member] : object(value)) {
            const std::size_t index = table.indexOf(key);
            if (index == table.count || (seen & mark(index)) != 0)
                continue;
            seen |= mark(index);
            if (member.is_null())
                continue;
            missing &= ~mark(index);
            readers[index](record, member, key);
        }
        if (missing != 0)
            throw DecodingError{"is missing"}.inMember(
                table.key(static_cast<std::size_t>(std::countr_zero(missing))));
    }

private:
    static constexpr auto& list = Fields<T>::list;
    static constexpr auto table = FieldTable{keysOf(list)};
    static_assert(table.count <= 64, "each field has a bit");

    using Reader = void (*)(T&, Value, std::string_view key);

    static constexpr std::uint64_t mark(std::size_t index) { return std::uint64_t{1} << index; }

    template <std::size_t index>
    static void read(T& record, Value member, std::string_view key)
    {
        auto& target = record.*std::get<index>(list).member;
        try {
            target = JSON::decode<typename WithoutOptional<std::remove_reference_t<decltype(target)>>::type>(
                member);
        } catch (const DecodingError& error) {
            throw error.inMember(key);
        }
    }

    static constexpr auto readers = []<std::size_t... index>(std::index_sequence<index...>)
    {
        return std::array<Reader, table.count>{&read<index>...};
    }
    (std::make_index_sequence<table.count>{});

    static constexpr std::uint64_t required = []<std::size_t... index>(std::index_sequence<index...>)
    {
        return ((isOptional<decltype(std::get<index>(list).member)> ? 0 : mark(index)) | ...);
    }
    (std::make_index_sequence<table.count>{});
};

} // namespace skyvane::JSON
