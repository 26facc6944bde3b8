#pragma once

#include "platform/json/value.h"

#include <cstdint>
#include <string>

namespace skyvane::JSON {

/// Specialise to read a type that is no record, list or one of those below: `static T decode(Value)`.
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

} // namespace skyvane::JSON
