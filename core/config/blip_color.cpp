#include "core/config/scope_palette.h"
#include "core/model/aircraft.h"

namespace skyvane {

Color Aircraft::blipColor(const ScopePalette& palette) const
{
    constexpr Color red{1.0, 0.27, 0.23};
    constexpr Color amber{1.0, 0.85, 0.3};
    if (isEmergency())
        return red;
    if (isMilitary())
        return amber;
    return palette.phosphor;
}

} // namespace skyvane
