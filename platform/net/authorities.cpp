#include "platform/net/authorities.h"

#include "platform/net/handles.h"
#include "platform/net/transport.h"
#include "platform/pinned.h"

namespace skyvane {

namespace {

std::string orEmpty(const char* text)
{
    return text != nullptr ? text : "";
}

/// As the library was built; asking a transfer would prepare all of TLS.
Authorities systems()
{
    const curl_version_info_data* const built = curl_version_info(CURLVERSION_NOW);
    return {.folder = orEmpty(built->capath), .bundle = orEmpty(built->cainfo)};
}

} // namespace

Authorities Authorities::current()
{
    if (const Network* network = Pinned<Network>::current())
        return {.folder = network->authorityFolder, .bundle = network->authorityFile};
    static const Authorities known = systems();
    return known;
}

} // namespace skyvane
