#include "core/views/deep_link_url.h"

#include <cstdlib>
#include <string>

namespace skyvane::DeepLinkURL {

std::optional<URL> aircraft(std::string_view hex)
{
    constexpr std::size_t longestHex = 200; // Bytes, with which a link is far from the longest.
    if (hex.size() > longestHex)
        return std::nullopt;
    return URL::parse(std::string{scheme}.append(aircraftPlace).append("/").append(hex));
}

URL open()
{
    const auto url = URL::parse(std::string{scheme}.append(skyPlace));
    if (!url)
        std::abort();
    return *url;
}

} // namespace skyvane::DeepLinkURL
