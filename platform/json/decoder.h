#pragma once

#include "platform/json/value.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace skyvane::JSON {

/// Specialise to read a type that is no record, list or one of those below: `static T decode(Value)`, or what
/// a T is made of.
template <class T>
struct Decoder;

template <class T>
T decode(Value value)
{
    return T{Decoder<T>::decode(value)};
}

template <>
struct Decoder<std::string> {
    static std::string_view decode(Value value) { return string(value); }
};

template <>
struct Decoder<double> {
    static double decode(Value value) { return number(value); }
};

template <>
struct Decoder<std::int64_t> {
    static std::int64_t decode(Value value) { return integer(value); }
};

} // namespace skyvane::JSON
