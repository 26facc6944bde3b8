#pragma once

#include "core/model/aircraft.h"

#include <string>
#include <vector>

/// The star by which one aircraft is put on the watch list: its registration, else its address.
namespace skyvane::Star {

/// Whether the list has this very aircraft, by registration or address in any case; patterns with `*` do not
/// count.
bool isOn(const std::vector<std::string>& watch, const Aircraft& aircraft);

/// The list with the aircraft where it had it not, and without it where it had. A full list stays as it is.
std::vector<std::string> toggled(std::vector<std::string> watch, const Aircraft& aircraft);

} // namespace skyvane::Star
