#pragma once

#include <string_view>

namespace skyvane {

/// The side at which lines begin, and with them whatever stands in reading order.
enum class TextDirection { leftToRight, rightToLeft };

/// That of a language, which is named as catalogues are: "ar", "pt_BR". From left to right for what is none.
TextDirection directionOf(std::string_view language);

/// Whether the text has letters that run from left to right, and none that run the other way.
bool runsLeftToRight(std::string_view text);

} // namespace skyvane
