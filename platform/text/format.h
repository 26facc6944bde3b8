#pragma once

#include <string>

/// Text for machines and for fixed formats: the same in every locale.
namespace skyvane::Format {

/// As printf's "%.<decimals>f" in the C locale, also for values that are not finite. `decimals` is 0 to 20.
std::string fixed(double value, int decimals);

} // namespace skyvane::Format
