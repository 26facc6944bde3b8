#include "platform/net/authorities.h"

#include "platform/net/handles.h"
#include "platform/net/transport.h"
#include "platform/pinned.h"

namespace skyvane {

namespace {

std::string told(CURL* easy, CURLINFO which)
{
    const char* text = nullptr;
    curl_easy_getinfo(easy, which, &text);
    return text != nullptr ? text : "";
}

Authorities systems()
{
    const EasyHandle untouched{curl_easy_init()};
    return {
        .folder = told(untouched.get(), CURLINFO_CAPATH),
        .bundle = told(untouched.get(), CURLINFO_CAINFO),
    };
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
