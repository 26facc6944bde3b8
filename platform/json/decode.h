#pragma once

#include "platform/json/decoder.h"
#include "platform/json/record_decoder.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace skyvane::JSON {

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
