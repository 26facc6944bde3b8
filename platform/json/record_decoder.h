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
        Progress progress{.record = record};
        for (const auto [key, member] : object(value)) {
            const std::size_t index = table.onlyIndexFor(key);
            if (index != table.count)
                readers[index](progress, key, member);
        }
        if (progress.missing != 0)
            throw DecodingError::missing().inMember(
                table.key(static_cast<std::size_t>(std::countr_zero(progress.missing))));
    }

private:
    static constexpr auto& list = Fields<T>::list;
    static constexpr auto table = FieldTable{keysOf(list)};
    static_assert(table.count <= 64, "each field has a bit");

    static constexpr std::uint64_t mark(std::size_t index) { return std::uint64_t{1} << index; }

    static constexpr std::uint64_t required = []<std::size_t... index>(std::index_sequence<index...>)
    {
        return ((isOptional<decltype(std::get<index>(list).member)> ? 0 : mark(index)) | ...);
    }
    (std::make_index_sequence<table.count>{});

    struct Progress {
        T& record;
        std::uint64_t seen = 0;
        std::uint64_t missing = required;
    };

    using Reader = void (*)(Progress&, std::string_view key, Value member);

    /// Does nothing when the key is not this field's: to compare with one that is known while compiling is
    /// cheap.
    template <std::size_t index>
    static void read(Progress& progress, std::string_view key, Value member)
    {
        constexpr auto& field = std::get<index>(list);
        if (key != field.key || (progress.seen & mark(index)) != 0)
            return;
        progress.seen |= mark(index);
        if (member.is_null())
            return;
        progress.missing &= ~mark(index);
        auto& target = progress.record.*field.member;
        try {
            target
                = Decoder<typename WithoutOptional<std::remove_reference_t<decltype(target)>>::type>::decode(
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
};

} // namespace skyvane::JSON
