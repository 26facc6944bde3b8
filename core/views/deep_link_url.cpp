#include "core/views/deep_link_url.h"

#include <cstdlib>
#include <string>

namespace skyvane::DeepLinkURL {

std::optional<URL> aircraft(std::string_view hex)
{
    constexpr std::size_t longestHex = 200; // Bytes; the companion reads no link of more than 256.
    if (hex.size() > longestHex)
        return std::nullopt;
    return URL::parse("skyvane://aircraft/" + std::string{hex});
}

URL open()
{
    const auto url = URL::parse("skyvane://open");
    if (!url)
        std::abort();
    return *url;
}

} // namespace skyvane::DeepLinkURL
