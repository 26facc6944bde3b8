#pragma once

#include "core/enrichment/photo_api.h"
#include "core/enrichment/route_api.h"
#include "core/feed/sources.h"

#include <string>
#include <vector>

namespace skyvane::test {

/// The hosts that aircraft are asked of, for a server that stands in for them.
inline std::vector<std::string> feedHosts()
{
    std::vector<std::string> hosts;
    for (const ADSB::Source& source : ADSB::sources())
        hosts.push_back(source.name);
    return hosts;
}

/// The hosts of all services, that of the photographs' files included.
inline std::vector<std::string> serviceHosts()
{
    std::vector<std::string> hosts = feedHosts();
    hosts.insert(hosts.end(), {std::string{RouteAPI::host}, std::string{PhotoAPI::host}, "t.plnspttrs.net"});
    return hosts;
}

} // namespace skyvane::test
