#include "core/enrichment/photo_api.h"
#include "core/enrichment/route_api.h"
#include "fuzz/fuzzer.h"

/// An answer of the route database or of the photo service; and what is looked up, when it is long enough to
/// begin with that on a line of its own.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace skyvane;
    const std::string_view whole = fuzz::text(data, size);
    const std::size_t end = whole.find('\n');
    const std::string_view wanted = whole.substr(0, end == std::string_view::npos ? 0 : end);
    const std::string body{whole.substr(end == std::string_view::npos ? 0 : end + 1)};
    const Transport transport = [&](const URLRequest& request, const std::stop_token&) {
        fuzz::require(request.url.scheme() == "https" && request.url.text().ends_with(wanted));
        return URLResponse{.status = 200, .body = body};
    };
    const auto route = RouteAPI::fetch(wanted, transport);
    const auto flight = RouteAPI::fetchFlight(wanted, transport);
    fuzz::require(route == (flight ? flight->route : std::nullopt));
    if (route)
        fuzz::require(route->summary().size() >= route->originCode.size());
    if (const auto photo = PhotoAPI::fetch(wanted, transport)) {
        fuzz::require(URL::parse(photo->thumbnailURL.text()) == photo->thumbnailURL);
        fuzz::require(!photo->pageURL || URL::parse(photo->pageURL->text()) == photo->pageURL);
    }
    return 0;
}
