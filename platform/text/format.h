#pragma once

#include <string>

/// Text for machines and for fixed formats: the same in every locale.
namespace skyvane::Format {

/// The number as printf's "%.<decimals>f" writes it in the C locale, also when it is not finite. `decimals`
/// is 0 to 20.
std::string fixed(double value, int decimals);

} // namespace skyvane::Format
