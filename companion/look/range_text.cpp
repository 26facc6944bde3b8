#include "companion/look/range_text.h"

#include "platform/text/format.h"
#include "platform/text/locale.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace skyvane {

namespace {

struct Unit {
    double perNauticalMile;
    std::string_view word;
};

Unit unitOf(std::string_view word)
{
    if (word == "nm")
        return {.perNauticalMile = 1, .word = "nm"};
    if (word == "km")
        return {.perNauticalMile = 1.852, .word = "km"};
    return {.perNauticalMile = 1.15078, .word = "mi"};
}

} // namespace

double askedRadiusNM(double radiusNM)
{
    const double rounded = std::round(radiusNM);
    return rounded < 250 ? std::max(rounded, 1.0) : 250.0;
}

std::string rangeText(double rangeNM, std::string_view unit)
{
    constexpr double longest = 1e9; // What a whole number can hold by far.
    const auto [perNauticalMile, word] = unitOf(unit);
    const double value = std::clamp(rangeNM, -longest, longest) * perNauticalMile;
    const double tenths = std::round(value * 10);
    const bool isWhole = value >= 10 || std::fmod(tenths, 10) == 0;
    const std::string number = isWhole ? groupedInteger(std::llround(value)) : Format::fixed(value, 1);
    return number + " " + std::string{word};
}

} // namespace skyvane
