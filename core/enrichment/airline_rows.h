#pragma once

#include "core/enrichment/unique_table.h"

#include <span>

namespace skyvane {

/// Operator designators with their airlines, in the list's order.
std::span<const TableRow> airlineRows();

} // namespace skyvane
