#pragma once

#include "core/enrichment/unique_table.h"

#include <optional>
#include <string_view>

/// Models in words for the type designators that the feed reports. Any thread may ask.
namespace skyvane::AircraftTypes {

/// By designator in upper case.
const TextTable& table();

/// Of a designator in any case; blanks around it are not ignored. What it gives is the table's own, for as
/// long as the process.
std::optional<std::string_view> name(std::optional<std::string_view> designator);

} // namespace skyvane::AircraftTypes
