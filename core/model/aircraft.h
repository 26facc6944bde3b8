#pragma once

#include "core/model/altitude.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace skyvane {

struct Color;
struct ScopePalette;

/// Degrees, WGS-84.
struct Coordinate {
    double latitude; ///< North positive.
    double longitude; ///< East positive.

    bool operator==(const Coordinate&) const = default;
};

/// One aircraft as the aggregator reports it. A field the feed did not send is absent, never zero.
struct Aircraft {
    std::string hex; ///< ICAO 24-bit address as sent; the identity.
    std::optional<std::string> flight{}; ///< Callsign as sent; may carry trailing blanks.
    std::optional<std::string> registration{}; ///< Tail registration.
    std::optional<std::string> typeCode{}; ///< ICAO type designator, such as "A320".
    std::optional<std::string> typeDescription{}; ///< The feed's own long description.
    std::optional<std::string> operatorName{}; ///< Registered owner or operator.
    std::optional<Altitude> altBaro{};
    std::optional<std::int64_t> altGeom{}; ///< Feet above the ellipsoid.
    std::optional<double> groundSpeed{}; ///< Knots.
    std::optional<double> track{}; ///< Over ground, degrees clockwise from true north.
    std::optional<std::int64_t> baroRate{}; ///< Feet a minute.
    std::optional<std::int64_t> geomRate{}; ///< Feet a minute.
    std::optional<std::string> squawk{}; ///< Transponder code, four octal digits.
    std::optional<std::string> emergency{}; ///< The feed's status word; "none" when there is none.
    std::optional<std::string> category{}; ///< Emitter category, such as "A7".
    std::optional<double> lat{}; ///< Degrees north.
    std::optional<double> lon{}; ///< Degrees east.
    std::optional<double> seen{}; ///< Seconds since any message.
    std::optional<double> seenPos{}; ///< Seconds since the last position.
    std::optional<std::int64_t> dbFlags{}; ///< Bit 0: military.
    std::optional<double>
        distanceNM{}; ///< From the query point, nautical miles, as the aggregator computed it.
    std::optional<double>
        directionDeg{}; ///< From the query point, degrees true, as the aggregator computed it.

    const std::string& id() const { return hex; }

    /// Trimmed `flight`, else `registration`, else `hex` in upper case: the first that has any text.
    std::string displayName() const;

    std::optional<Coordinate> coordinate() const;

    /// Only when the feed says so; an unknown altitude is not the ground.
    bool isOnGround() const;

    /// Barometric, else geometric; on the ground the geometric one, unlike `altitudeText`.
    std::optional<std::int64_t> altitudeFeet() const;

    /// "35,000 ft" grouped by locale, "On ground", or "—".
    std::string altitudeText() const;

    /// "452 kt", or "—".
    std::string speedText() const;

    /// Feet a minute, barometric, else geometric.
    std::optional<std::int64_t> verticalRate() const;

    /// "↑ 1,216 ft/min" grouped by locale. Absent in level flight, below 64 ft/min either way.
    std::optional<std::string> verticalText() const;

    /// Squawking 7500, 7600 or 7700, or any emergency word but "none", the empty one included.
    bool isEmergency() const;

    bool isMilitary() const;

    std::optional<double> distanceMiles() const; ///< Statute miles.

    /// Whether its emitter category says so, or its type designator (in any case) is one of a helicopter.
    bool isHelicopter() const;

    /// Where to look from the query point: "Look NE, 12° up", or "Look NE" without an airborne altitude.
    std::optional<std::string> lookDirection() const;

    /// "nm" and "km" are themselves; any other word, "NM" included, means statute miles. Absent without a
    /// distance.
    std::optional<std::string> distanceText(std::string_view unit, bool compact) const;

    /// Red in an emergency, amber for the military, else the palette's phosphor. (core/config)
    Color blipColor(const ScopePalette& palette) const;

    /// The model in words, from the type designator, else from the feed's description. (core/enrichment)
    std::optional<std::string> typeName() const;

    /// The operator in words, from the feed, else from an airline callsign. (core/enrichment)
    std::optional<std::string> operatorDisplayName() const;

    bool operator==(const Aircraft&) const = default;
};

} // namespace skyvane
