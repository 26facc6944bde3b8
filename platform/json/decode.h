#pragma once

#include "platform/json/field_table.h"
#include "platform/json/value.h"

#include <simdjson.h>

#include <array>
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
struct Decoder<std::vector<T>> {
    static std::vector<T> decode(Value value)
    {
        const simdjson::dom::array elements = array(value);
        std::vector<T> list;
        list.reserve(elements.size());
        for (const Value element : elements) {
            try {
                list.push_back(JSON::decode<T>(element));
            } catch (const DecodingError& error) {
                throw error.inElement(list.size());
            }
        }
        return list;
    }
};

/// A record with a field table is read in one pass over the object. Unknown keys are passed over; of two
/// equal keys the first counts; null is absence.
template <class Record>
requires requires
{
    Fields<Record>::list;
}
struct Decoder<Record> {
    static Record decode(Value value)
    {
        Record record{};
        std::uint64_t seen = 0;
        for (const auto [key, member] : object(value)) {
            const std::size_t index = table.indexOf(key);
            if (index == table.count || (seen >> index & 1) != 0)
                continue;
            seen |= std::uint64_t{1} << index;
            if (member.is_null())
                seen |= nullMark(index);
            else
                readers[index](record, member, key);
        }
        requirePresent(seen, indices);
        return record;
    }

private:
    static constexpr auto& list = Fields<Record>::list;
    static constexpr auto table = FieldTable{keysOf(list)};
    static constexpr auto indices = std::make_index_sequence<table.count>{};
    static_assert(table.count <= 32, "presence and null marks share 64 bits");

    using Reader = void (*)(Record&, Value, std::string_view key);

    static constexpr std::uint64_t nullMark(std::size_t index) { return std::uint64_t{1} << (index + 32); }

    template <std::size_t index>
    static void read(Record& record, Value member, std::string_view key)
    {
        auto& target = record.*std::get<index>(list).member;
        try {
            target = JSON::decode<typename WithoutOptional<std::remove_reference_t<decltype(target)>>::type>(
                member);
        } catch (const DecodingError& error) {
            throw error.inMember(key);
        }
    }

    template <std::size_t... index>
    static constexpr std::array<Reader, sizeof...(index)> readersOf(std::index_sequence<index...>)
    {
        return {&read<index>...};
    }
    static constexpr auto readers = readersOf(indices);

    template <std::size_t... index>
    static void requirePresent(std::uint64_t seen, std::index_sequence<index...>)
    {
        (requireField<index>(seen), ...);
    }

    template <std::size_t index>
    static void requireField(std::uint64_t seen)
    {
        constexpr auto& field = std::get<index>(list);
        if constexpr (!isOptional<decltype(field.member)>) {
            const bool isThere = (seen >> index & 1) != 0 && (seen & nullMark(index)) == 0;
            if (!isThere)
                throw DecodingError{"is missing"}.inMember(field.key);
        }
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
