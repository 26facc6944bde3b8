#include "companion/look/range_text.h"

#include "core/model/distance_unit.h"
#include "platform/text/format.h"
#include "platform/text/locale.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace skyvane {

std::string rangeText(double rangeNM, std::string_view unit)
{
    constexpr double longest = 1e9; // What a whole number can hold by far.
    const auto [word, perNauticalMile] = DistanceUnit::named(unit);
    const double value = std::clamp(rangeNM, -longest, longest) * perNauticalMile;
    const double tenths = std::round(value * 10);
    const bool isWhole = value >= 10 || std::fmod(tenths, 10) == 0;
    const std::string number = isWhole ? groupedInteger(std::llround(value)) : Format::fixed(value, 1);
    return number + " " + std::string{word};
}

} // namespace skyvane
