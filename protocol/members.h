#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <tuple>

namespace skyvane::Protocol {

/// The members of a record in a message, one list for reading and for writing, in the order in which the
/// record declares them. Specialise: `static constexpr auto list = std::tuple{member("kind",
/// &WidgetTarget::kind), …};`. A `static constexpr Constant constant` beside it is written in front of them.
template <class Record>
struct Members;

/// A member; one that is a std::optional is left out when it is absent.
template <class Record, class T>
struct Member {
    std::string_view name;
    T Record::*field;
};

/// A member that is null when it is absent.
template <class Record, class T>
struct NullableMember {
    std::string_view name;
    std::optional<T> Record::*field;
};

/// A record whose members stand among those of the record that holds it.
template <class Record, class T>
struct EmbeddedMember {
    T Record::*field;
};

/// A number that is always written and never looked at.
struct Constant {
    std::string_view name;
    std::int64_t value;
};

template <class Record, class T>
constexpr Member<Record, T> member(std::string_view name, T Record::*field)
{
    return {name, field};
}

template <class Record, class T>
constexpr NullableMember<Record, T> nullable(std::string_view name, std::optional<T> Record::*field)
{
    return {name, field};
}

template <class Record, class T>
constexpr EmbeddedMember<Record, T> embedded(T Record::*field)
{
    return {field};
}

} // namespace skyvane::Protocol
