#include "core/config/hex_color.h"

#include "platform/text/unicode.h"

#include <charconv>
#include <cstdint>

namespace skyvane::HexColor {

namespace {

constexpr std::size_t digitCount = 6;

/// An unsigned number in base 16; one leading plus sign may stand for a digit, as may the minus sign of a
/// zero.
std::optional<std::uint32_t> hexadecimal(std::string_view text)
{
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+'))
        text.remove_prefix(1);
    std::uint32_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, 16);
    if (error != std::errc{} || end != text.data() + text.size())
        return std::nullopt;
    if (isNegative && value != 0)
        return std::nullopt;
    return value;
}

double channel(std::uint32_t value, unsigned shift)
{
    return static_cast<double>(value >> shift & 0xFF) / 255;
}

} // namespace

std::optional<Components> components(std::string_view text)
{
    text = Unicode::trimmed(text);
    if (text.starts_with('#'))
        text.remove_prefix(1);
    if (text.size() != digitCount)
        return std::nullopt;
    const auto value = hexadecimal(text);
    if (!value)
        return std::nullopt;
    return Components{.red = channel(*value, 16), .green = channel(*value, 8), .blue = channel(*value, 0)};
}

} // namespace skyvane::HexColor
