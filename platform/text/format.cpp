#include "platform/text/format.h"

#include <array>
#include <charconv>

namespace skyvane::Format {

std::string fixed(double value, int decimals)
{
    std::array<char, 400> buffer{}; // The longest double has 309 digits before the point.
    const auto [end, error] = std::to_chars(
        buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, decimals);
    return {buffer.data(), end};
}

} // namespace skyvane::Format
