#pragma once

#include "core/enrichment/unique_table.h"

#include <optional>
#include <span>
#include <string_view>

/// Models in words for the type designators that the feed reports. Any thread may ask.
namespace skyvane::AircraftTypes {

/// Type designators with their models, in the list's order.
std::span<const TableRow> rows();

/// The models, found by type designator in upper case.
const TextTable& table();

/// The model of a designator in any case; blanks around it are not ignored. The text belongs to the table,
/// which lives as long as the process.
std::optional<std::string_view> name(std::optional<std::string_view> designator);

} // namespace skyvane::AircraftTypes
