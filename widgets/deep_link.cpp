#include "widgets/deep_link.h"

#include "core/views/deep_link_url.h"

namespace skyvane {

std::optional<URL> deepLink(const SkyEntry& entry)
{
    if (entry.aircraft.empty() || entry.isSample)
        return DeepLinkURL::open();
    return DeepLinkURL::aircraft(entry.aircraft.front().hex);
}

} // namespace skyvane
