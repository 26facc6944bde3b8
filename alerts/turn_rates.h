#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

namespace skyvane {

/// How fast aircraft turn, degrees a second clockwise, by their addresses: what some sources know beyond
/// the fields of an `Aircraft`.
using TurnRates = std::unordered_map<std::string, double>;

/// What a source's answer says; of what is no answer, nothing.
TurnRates turnRatesIn(std::string_view answer);

} // namespace skyvane
