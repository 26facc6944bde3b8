#pragma once

#include "core/enrichment/unique_table.h"

#include <optional>
#include <span>
#include <string_view>

/// Airlines in words for the callsigns that flights report. Any thread may ask.
namespace skyvane::Airlines {

/// Operator designators with their airlines, in the list's order.
std::span<const TableRow> rows();

/// The airlines' names, found by operator designator in upper case.
const TextTable& table();

/// Whether three letters and a number begin the callsign, in any case, blanks around it ignored: "UAL123",
/// but neither "N123AB" nor "SWA".
bool isAirlineCallsign(std::optional<std::string_view> callsign);

/// What it gives is the table's own, for as long as the process.
std::optional<std::string_view> name(std::optional<std::string_view> forCallsign);

} // namespace skyvane::Airlines
