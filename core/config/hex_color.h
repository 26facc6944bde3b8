#pragma once

#include <optional>
#include <string_view>

/// Colours as people write them: six hexadecimal digits with an optional "#" before them.
namespace skyvane::HexColor {

/// Each channel 0 to 1.
struct Components {
    double red;
    double green;
    double blue;

    bool operator==(const Components&) const = default;
};

/// Blanks around the text are ignored, line breaks are not. Absent for everything else, short and 8-digit
/// forms included.
std::optional<Components> components(std::string_view text);

} // namespace skyvane::HexColor
