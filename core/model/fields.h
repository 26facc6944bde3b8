#pragma once

#include "core/model/aircraft.h"
#include "core/model/api_response.h"
#include "core/model/home_location.h"
#include "platform/json/decode.h"

#include <tuple>

/// How the records of the model are read from JSON.
namespace skyvane::JSON {

/// Anything but a whole number, most of all the feed's "ground", means on the ground.
template <>
struct Decoder<Altitude> {
    static Altitude decode(Value value)
    {
        const auto feet = wholeNumber(value);
        return feet ? Altitude::feet(*feet) : Altitude::ground();
    }
};

template <>
struct Fields<Aircraft> {
    static constexpr auto list = std::tuple{
        field("hex", &Aircraft::hex),
        field("flight", &Aircraft::flight),
        field("squawk", &Aircraft::squawk),
        field("emergency", &Aircraft::emergency),
        field("category", &Aircraft::category),
        field("lat", &Aircraft::lat),
        field("lon", &Aircraft::lon),
        field("seen", &Aircraft::seen),
        field("track", &Aircraft::track),
        field("dbFlags", &Aircraft::dbFlags),
        field("r", &Aircraft::registration),
        field("t", &Aircraft::typeCode),
        field("desc", &Aircraft::typeDescription),
        field("ownOp", &Aircraft::operatorName),
        field("alt_baro", &Aircraft::altBaro),
        field("alt_geom", &Aircraft::altGeom),
        field("gs", &Aircraft::groundSpeed),
        field("baro_rate", &Aircraft::baroRate),
        field("geom_rate", &Aircraft::geomRate),
        field("seen_pos", &Aircraft::seenPos),
        field("dst", &Aircraft::distanceNM),
        field("dir", &Aircraft::directionDeg),
    };
};

template <>
struct Fields<APIResponse> {
    static constexpr auto list = std::tuple{
        field("ac", &APIResponse::ac),
        field("aircraft", &APIResponse::aircraft),
    };
};

template <>
struct Fields<HomeLocation> {
    static constexpr auto list = std::tuple{
        field("latitude", &HomeLocation::latitude),
        field("longitude", &HomeLocation::longitude),
        field("label", &HomeLocation::label),
    };
};

} // namespace skyvane::JSON
