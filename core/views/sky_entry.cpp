#include "core/views/sky_entry.h"

#include <cstdlib>

namespace skyvane {

std::int64_t SkyEntry::wholeRadiusNM() const
{
    constexpr double limit = 9223372036854775808.0; // 2^63
    if (!(radiusNM >= -limit && radiusNM < limit))
        std::abort();
    return static_cast<std::int64_t>(radiusNM);
}

} // namespace skyvane
