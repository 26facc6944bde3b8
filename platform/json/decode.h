#pragma once

#include "platform/json/field_table.h"
#include "platform/json/value.h"

#include <simdjson.h>

#include <array>
#include <bit>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace skyvane::JSON {

/// Specialise to read a type that is neither a record nor one of those below: `static T decode(Value)`.
template <class T>
struct Decoder;

template <class T>
T decode(Value value)
{
    return Decoder<T>::decode(value);
}

template <>
struct Decoder<std::string> {
    static std::string decode(Value value) { return std::string{string(value)}; }
};

template <>
struct Decoder<double> {
    static double decode(Value value) { return number(value); }
};

template <>
struct Decoder<std::int64_t> {
    static std::int64_t decode(Value value) { return integer(value); }
};

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

template <class T>
struct Decoder<std::vector<T>> {
    static std::vector<T> decode(Value value)
    {
        const simdjson::dom::array elements = array(value);
        std::vector<T> list;
        list.reserve(elements.size());
        std::size_t index = 0;
        for (const Value element : elements) {
            try {
                append(list, element);
            } catch (const DecodingError& error) {
                throw error.inElement(index);
            }
            ++index;
        }
        return list;
    }

private:
    /// A record is large; it is read where it stays.
    static void append(std::vector<T>& list, Value element)
    {
        if constexpr (Record<T>)
            Decoder<T>::fill(list.emplace_back(), element);
        else
            list.push_back(JSON::decode<T>(element));
    }
};

/// Reads one JSON text. Throws `DecodingError` when it is not JSON or not of T's shape.
template <class T>
T decodeText(std::string_view bytes)
{
    Document document{bytes};
    return decode<T>(document.root());
}

} // namespace skyvane::JSON
