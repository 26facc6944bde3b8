#pragma once

#include "platform/json/decoder.h"
#include "platform/json/object.h"
#include "platform/json/record_decoder.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace skyvane::JSON {

template <class T>
struct Decoder<std::vector<T>> {
    static std::vector<T> decode(Value value)
    {
        std::vector<T> list;
        list.reserve(lengthOfList(value));
        forEach(value, [&](Value element) { append(list, element); });
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
template <class T, class Bytes>
T decodeText(const Bytes& bytes)
{
    const Document document{bytes};
    return decode<T>(document.root());
}

/// The same, and gives the text's memory back before the record is made, which is the larger of the two.
template <class T>
T decodeText(std::string&& bytes)
{
    const Document document{std::as_const(bytes)};
    std::string{}.swap(bytes); // Unlike clear(), lets its room go.
    return decode<T>(document.root());
}

} // namespace skyvane::JSON
