#pragma once

#include "protocol/codec.h"
#include "protocol/members.h"

#include <optional>
#include <tuple>

/// Records from and to the protocol's JSON, by the lists of their members.
namespace skyvane::Protocol {

template <class T>
concept Record = requires
{
    Members<T>::list;
};

/// Members are read in the order of their list; others are passed over, and null is a value.
template <Record T>
struct Codec<T> {
    static T read(JSON::Value value)
    {
        const auto made = [&](const auto&... member) { return T{take(member, value)...}; };
        JSON::object(value);
        return std::apply(made, Members<T>::list);
    }

    static Json write(const T& record)
    {
        Json json = Json::object();
        if constexpr (requires { Members<T>::constant; })
            json[Members<T>::constant.name] = Members<T>::constant.value;
        std::apply([&](const auto&... member) { (put(json, member, record), ...); }, Members<T>::list);
        return json;
    }

private:
    static JSON::Object membersOf(JSON::Value value) { return JSON::Object{value, JSON::Null::value}; }

    template <class Field>
    static Field take(const Member<T, Field>& member, JSON::Value value)
    {
        return membersOf(value).required(member.name, &Protocol::read<Field>);
    }
    template <class Field>
    static std::optional<Field> take(const Member<T, std::optional<Field>>& member, JSON::Value value)
    {
        return membersOf(value).optional(member.name, &Protocol::read<Field>);
    }
    template <class Field>
    static std::optional<Field> take(const NullableMember<T, Field>& member, JSON::Value value)
    {
        const auto found = membersOf(value).optional(member.name, &Protocol::read<std::optional<Field>>);
        return found.value_or(std::nullopt);
    }
    template <class Field>
    static Field take(const EmbeddedMember<T, Field>&, JSON::Value value)
    {
        return Protocol::read<Field>(value);
    }

    template <class Field>
    static void put(Json& json, const Member<T, Field>& member, const T& record)
    {
        json[member.name] = Protocol::write(record.*member.field);
    }
    template <class Field>
    static void put(Json& json, const Member<T, std::optional<Field>>& member, const T& record)
    {
        if (const auto& field = record.*member.field)
            json[member.name] = Protocol::write(*field);
    }
    template <class Field>
    static void put(Json& json, const NullableMember<T, Field>& member, const T& record)
    {
        json[member.name] = Protocol::write(record.*member.field);
    }
    template <class Field>
    static void put(Json& json, const EmbeddedMember<T, Field>& member, const T& record)
    {
        json.update(Protocol::write(record.*member.field));
    }
};

} // namespace skyvane::Protocol
