#pragma once

#include "platform/json/value.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <type_traits>
#include <vector>

namespace skyvane::JSON {

/// What a reader takes a member for that is null.
enum class Null { absence, value };

/// The members of one object by key; of two equal keys the first counts. Every function throws
/// `DecodingError` and names the place, also of what the reader that it is given throws.
class Object {
public:
    explicit Object(Value value, Null null = Null::absence) : m_members(object(value)), m_null(null) { }

    std::optional<Value> find(std::string_view key) const;

    /// What `read` makes of the member.
    template <class Read>
    auto required(std::string_view key, Read&& read) const
    {
        try {
            const auto value = find(key);
            if (!value)
                throw DecodingError::missing();
            return read(*value);
        } catch (const DecodingError& error) {
            throw error.inMember(key);
        }
    }

    /// The same of one that may be missing.
    template <class Read>
    auto optional(std::string_view key, Read&& read) const
        -> std::optional<std::invoke_result_t<Read&, Value>>
    {
        if (!find(key))
            return std::nullopt;
        return required(key, read);
    }

private:
    simdjson::dom::object m_members;
    Null m_null;
};

/// A reader of an object within an object, which takes null for absence.
inline Object members(Value value)
{
    return Object{value};
}

/// Calls `visit` with one element after another.
template <class Visit>
void forEach(Value list, Visit&& visit)
{
    std::size_t index = 0;
    for (const Value element : array(list)) {
        try {
            visit(element);
        } catch (const DecodingError& error) {
            throw error.inElement(index);
        }
        ++index;
    }
}

/// How many elements a list has; throws when it is longer than `mostElements`.
std::size_t lengthOfList(Value list);

/// A reader of a list of at most `mostElements`, each of which `read` reads.
template <class Read>
auto listOf(Read read)
{
    return [read](Value value) {
        std::vector<std::invoke_result_t<const Read&, Value>> list;
        list.reserve(lengthOfList(value));
        forEach(value, [&](Value element) { list.push_back(read(element)); });
        return list;
    };
}

} // namespace skyvane::JSON
