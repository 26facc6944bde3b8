#pragma once

#include "core/model/aircraft.h"

#include <optional>
#include <string_view>

namespace skyvane::GeoUri {

/// The text without blanks and line breaks at both ends.
std::string_view withoutBlanksAround(std::string_view text);

/// The latitude and longitude of a `geo:` URI (RFC 5870) in WGS-84, of any size; its altitude, its parameters
/// and a query behind it are passed over. Absent for everything else.
std::optional<Coordinate> angles(std::string_view text);

} // namespace skyvane::GeoUri
