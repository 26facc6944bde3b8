#pragma once

#include "core/model/aircraft.h"
#include "core/model/distance_unit.h"

#include <QString>

#include <string>

namespace skyvane {

/// In what the companion writes altitudes, speeds and climbs; the widgets have their own.
enum class Measures {
    aviation, ///< Feet, knots, feet a minute.
    metric, ///< Metres, kilometres an hour, metres a second.
    imperial, ///< Feet, miles an hour, feet a minute.
};

/// What figures are written in.
struct Units {
    std::string distance = DistanceUnit::standard; ///< As `DistanceUnit` names it.
    Measures measures = Measures::aviation;

    bool operator==(const Units&) const = default;
};

/// Figures of an aircraft, grouped by locale; empty where they are not known.
namespace Figures {

/// "35,000 ft", "10,668 m"; on the ground what the record says of that.
QString altitude(const Aircraft& aircraft, Measures measures);

QString speed(const Aircraft& aircraft, Measures measures);

/// "↑ 1,216 ft/min", "↑ 6.2 m/s"; empty in level flight.
QString climb(const Aircraft& aircraft, Measures measures);

} // namespace Figures

} // namespace skyvane
