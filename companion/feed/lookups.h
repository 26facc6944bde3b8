#pragma once

#include "companion/feed/answer_memory.h"
#include "companion/feed/errands.h"
#include "companion/photo/photo_decoder.h"
#include "core/enrichment/flight_route.h"
#include "core/enrichment/plane_photo.h"
#include "core/model/aircraft.h"
#include "platform/net/transport.h"

#include <QImage>

#include <functional>
#include <optional>
#include <string>

namespace skyvane {

/// A photograph, here to be shown.
struct Photograph {
    PlanePhoto photo;
    QImage image;
};

/// Routes and photographs, asked for beside the event loop and remembered until the program ends.
class Lookups {
public:
    using RouteFound = std::function<void(const std::optional<FlightRoute>&)>;
    using PhotographFound = std::function<void(const std::optional<Photograph>&)>;

    /// Everything handed in outlives this.
    Lookups(Errands& errands, PhotoDecoder& decoder, Transport transport)
        : m_errands(errands), m_decoder(decoder), m_transport(std::move(transport))
    {
    }

    /// The usual route of an airline's flight; nobody is asked about another aircraft, which has none. What
    /// is known already is found at once, within the call.
    [[nodiscard]] Errand route(const Aircraft& aircraft, RouteFound found);

    /// The photograph of the airframe with that ICAO address; nobody is asked about an address that the feed
    /// made up.
    [[nodiscard]] Errand photograph(const std::string& hex, PhotographFound found);

private:
    Errands& m_errands;
    PhotoDecoder& m_decoder;
    Transport m_transport;
    AnswerMemory<FlightRoute> m_routes{std::chrono::minutes{1}};
    AnswerMemory<Photograph> m_photographs{std::chrono::minutes{1}, /*most=*/16};
};

} // namespace skyvane
