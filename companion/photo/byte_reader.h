#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace skyvane {

/// Reads bytes from front to back. What would lead past the end is absent, and moves nothing.
class ByteReader {
public:
    explicit ByteReader(std::string_view bytes) : m_rest(bytes) { }

    std::string_view rest() const { return m_rest; }

    std::optional<std::string_view> take(std::size_t count)
    {
        if (count > m_rest.size())
            return std::nullopt;
        const std::string_view taken = m_rest.substr(0, count);
        m_rest.remove_prefix(count);
        return taken;
    }

    /// An unsigned number of up to four bytes, its highest first.
    std::optional<std::uint32_t> bigEndian(std::size_t count)
    {
        const auto bytes = take(count);
        if (!bytes)
            return std::nullopt;
        std::uint32_t number = 0;
        for (const char byte : *bytes)
            number = number << 8 | static_cast<unsigned char>(byte);
        return number;
    }

    /// The same, its lowest byte first.
    std::optional<std::uint32_t> littleEndian(std::size_t count)
    {
        const auto bytes = take(count);
        if (!bytes)
            return std::nullopt;
        std::uint32_t number = 0;
        for (std::size_t index = count; index > 0; --index)
            number = number << 8 | static_cast<unsigned char>((*bytes)[index - 1]);
        return number;
    }

private:
    std::string_view m_rest;
};

} // namespace skyvane
