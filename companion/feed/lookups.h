#pragma once

#include "companion/feed/answer_memory.h"
#include "companion/feed/errands.h"
#include "companion/photo/photo_image.h"
#include "core/enrichment/plane_photo.h"
#include "core/enrichment/route_api.h"
#include "core/model/aircraft.h"
#include "platform/net/transport.h"

#include <QImage>

#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace skyvane {

/// A photograph whose image has been loaded.
struct Photograph {
    PlanePhoto photo;
    QImage image;
};

/// Routes and photographs, looked up on other threads; a route is cached for an hour, a photograph for a day.
class Lookups {
public:
    using FlightFound = std::function<void(const std::optional<RouteAPI::Flight>&)>;
    using PhotographFound = std::function<void(const std::optional<Photograph>&)>;

    /// What is handed in outlives this.
    Lookups(Errands& errands, DecodePhoto decode, Transport transport)
        : m_errands(errands), m_decode(std::move(decode)), m_transport(std::move(transport))
    {
    }

    /// Looks up the airline of an airline's flight and its usual route; other aircraft have none, and nobody
    /// is asked. A cached answer is found at once, within the call.
    [[nodiscard]] Errand flight(const Aircraft& aircraft, FlightFound found);

    /// Looks up the photograph of the airframe with that ICAO address; nobody is asked about an address of
    /// no state.
    [[nodiscard]] Errand photograph(const std::string& hex, PhotographFound found);

private:
    Errands& m_errands;
    DecodePhoto m_decode;
    Transport m_transport;
    AnswerMemory<RouteAPI::Flight> m_flights{{.answer = std::chrono::hours{1}}};
    AnswerMemory<Photograph> m_photographs{{.answer = std::chrono::days{1}, .most = 16}};
};

} // namespace skyvane
