#include "platform/text/at_most.h"

#include "platform/text/unicode.h"

#include <algorithm>
#include <string_view>

namespace skyvane::Unicode {

namespace {

constexpr std::size_t bytesOfOne = 32; ///< A family of four in one emoji has 25.

/// The text's beginning in so many bytes, without a code point that ends behind them.
std::string_view beginning(std::string_view text, std::size_t bytes)
{
    if (text.size() <= bytes)
        return text;
    const auto continues = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; };
    while (bytes > 0 && continues(text[bytes]))
        --bytes;
    return text.substr(0, bytes);
}

} // namespace

std::string atMost(std::string text, std::size_t most)
{
    if (text.size() <= most)
        return text;
    const std::string_view looked = beginning(text, most * bytesOfOne);
    const std::vector<std::string_view> list = characters(looked);
    if (looked.size() == text.size() && list.size() <= most)
        return text;
    const std::size_t kept = list.empty() ? 0 : std::min(list.size(), most) - 1;
    text.resize(kept == 0 ? 0 : static_cast<std::size_t>(list[kept].data() - text.data()));
    return text += "…";
}

} // namespace skyvane::Unicode
