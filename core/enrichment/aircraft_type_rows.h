#pragma once

#include "core/enrichment/unique_table.h"

#include <span>

namespace skyvane {

/// Type designators with their models, in the list's order.
std::span<const TableRow> aircraftTypeRows();

} // namespace skyvane
