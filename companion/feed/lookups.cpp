#include "companion/feed/lookups.h"

#include "companion/feed/state_blocks.h"
#include "core/enrichment/airlines.h"
#include "core/enrichment/ascii.h"
#include "core/enrichment/photo_api.h"
#include "core/enrichment/polite_request.h"
#include "platform/text/printable.h"
#include "platform/text/unicode.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace skyvane {

namespace {

bool isLetterOrDigit(char character)
{
    return ASCII::isDigit(character) || ASCII::isUppercase(ASCII::uppercased(character));
}

/// Absent for one that no airline would fly under.
std::optional<std::string> callsignOf(const Aircraft& aircraft)
{
    if (!aircraft.flight || !Airlines::isAirlineCallsign(aircraft.flight))
        return std::nullopt;
    const std::string_view callsign = Unicode::trimmed(*aircraft.flight);
    if (!std::ranges::all_of(callsign, isLetterOrDigit))
        return std::nullopt;
    return std::string{callsign};
}

void cut(std::optional<std::string>& text)
{
    if (text)
        text = Unicode::oneLine(*std::move(text));
}

/// With no more of any text than anybody is shown.
std::optional<RouteAPI::Flight> withShownTexts(std::optional<RouteAPI::Flight> flight)
{
    if (flight)
        cut(flight->airline);
    if (flight && flight->route) {
        auto& route = flight->route;
        route->originCode = Unicode::oneLine(std::move(route->originCode));
        route->destinationCode = Unicode::oneLine(std::move(route->destinationCode));
        cut(route->originCity);
        cut(route->destinationCity);
    }
    return flight;
}

QImage loadImage(
    const URL& url, const Transport& transport, const DecodePhoto& decode, const std::stop_token& stop)
{
    if (url.scheme() != "https")
        return {};
    try {
        const URLResponse answer = transport({.url = url, .headers = {userAgent()}}, stop);
        return answer.status == 200 ? decode(answer.body, stop) : QImage{};
    } catch (const std::exception&) {
        return {};
    }
}

std::optional<Photograph> loadPhotograph(const std::string& hex, const Transport& transport,
    const DecodePhoto& decode, const std::stop_token& stop)
{
    auto photo = PhotoAPI::fetch(hex, transport, stop);
    if (!photo)
        return std::nullopt;
    cut(photo->photographer);
    QImage image = loadImage(photo->thumbnailURL, transport, decode, stop);
    if (image.isNull())
        return std::nullopt;
    return Photograph{.photo = *std::move(photo), .image = std::move(image)};
}

} // namespace

Errand Lookups::flight(const Aircraft& aircraft, FlightFound found)
{
    const auto callsign = callsignOf(aircraft);
    const auto* known = callsign ? m_flights.find(*callsign) : nullptr;
    if (!callsign || known != nullptr) {
        found(known != nullptr ? *known : std::nullopt);
        return {};
    }
    return m_errands.run(
        [callsign = *callsign, transport = m_transport](std::stop_token stop) {
            return withShownTexts(RouteAPI::fetchFlight(callsign, transport, stop));
        },
        [this, callsign = *callsign, found = std::move(found)](
            std::optional<RouteAPI::Flight> flight) { found(m_flights.keep(callsign, std::move(flight))); });
}

Errand Lookups::photograph(const std::string& hex, PhotographFound found)
{
    const auto* known = m_photographs.find(hex);
    if (!StateBlocks::hold(hex) || known != nullptr) {
        found(known != nullptr ? *known : std::nullopt);
        return {};
    }
    return m_errands.run([hex, transport = m_transport, decode = m_decode](
                             std::stop_token stop) { return loadPhotograph(hex, transport, decode, stop); },
        [this, hex, found = std::move(found)](
            std::optional<Photograph> photo) { found(m_photographs.keep(hex, std::move(photo))); });
}

} // namespace skyvane
