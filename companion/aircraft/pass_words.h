#pragma once

#include "core/model/aircraft.h"
#include "core/model/home_location.h"

#include <string>

namespace skyvane {

/// What can be expected of an aircraft that flies straight on, in a sentence: "It passes 62° high in the
/// south-west in 3 min.", or that it flies away. Empty where it turns, or that is not known, too low or too
/// far off to matter.
std::string passText(const Aircraft& aircraft, const HomeLocation& home);

} // namespace skyvane
