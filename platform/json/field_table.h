#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <tuple>
#include <type_traits>

namespace skyvane::JSON {

/// Specialise for a record: `static constexpr auto list = std::tuple{field("key", &Record::member), …};`. A
/// member that is a std::optional may be missing, every other one is required.
template <class Record>
struct Fields;

template <class Record, class Member>
struct Field {
    std::string_view key;
    Member Record::*member;
};

template <class Record, class Member>
constexpr Field<Record, Member> field(std::string_view key, Member Record::*member)
{
    return {key, member};
}

template <class T>
struct WithoutOptional {
    using type = T;
};
template <class T>
struct WithoutOptional<std::optional<T>> {
    using type = T;
};

/// Whether a pointer to member points at a std::optional.
template <class MemberPointer>
inline constexpr bool isOptional = false;
template <class Record, class T>
inline constexpr bool isOptional<std::optional<T> Record::*> = true;
template <class MemberPointer>
inline constexpr bool isOptional<const MemberPointer> = isOptional<MemberPointer>;

template <class... Fields>
constexpr std::array<std::string_view, sizeof...(Fields)> keysOf(const std::tuple<Fields...>& list)
{
    return std::apply([](const auto&... field) { return std::array{field.key...}; }, list);
}

/// Finds the one place in a list where a key can be, with one probe. The hash, of the key's length and its
/// first two and last characters, is made free of collisions while compiling.
template <std::size_t fieldCount>
class FieldTable {
public:
    static constexpr std::size_t count = fieldCount;

    consteval explicit FieldTable(const std::array<std::string_view, fieldCount>& keys) : m_keys(keys)
    {
        do
            ++m_seed; // Ends: keys alike in all four would be refused as an endless evaluation.
        while (!placeAll());
    }

    /// The only place in the list where the key can be, or `count` when there is none.
    constexpr std::size_t onlyIndexFor(std::string_view key) const
    {
        return key.empty() ? count : m_places[slotOf(key)];
    }

    constexpr std::string_view key(std::size_t index) const { return m_keys[index]; }

private:
    static constexpr int slotBits = 8;

    constexpr std::size_t slotOf(std::string_view key) const
    {
        const auto byte = [](char character) { return std::uint32_t{static_cast<unsigned char>(character)}; };
        const char second = key[key.size() > 1 ? 1 : 0];
        const std::uint32_t trait = static_cast<std::uint32_t>(key.size()) ^ byte(key.front()) << 8
            ^ byte(key.back()) << 16 ^ byte(second) << 24;
        return (trait * m_seed * 2654435761U) >> (32 - slotBits);
    }

    constexpr bool placeAll()
    {
        m_places.fill(count);
        for (std::size_t index = 0; index < count; ++index) {
            auto& place = m_places[slotOf(m_keys[index])];
            if (place != count)
                return false;
            place = static_cast<std::uint8_t>(index);
        }
        return true;
    }

    std::array<std::string_view, fieldCount> m_keys;
    std::array<std::uint8_t, std::size_t{1} << slotBits> m_places{};
    std::uint32_t m_seed = 0;
};

} // namespace skyvane::JSON
