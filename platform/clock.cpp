#include "platform/clock.h"

#include "platform/pinned.h"

namespace skyvane::Clock {

Date now()
{
    if (const Date* pinned = Pinned<Date>::current())
        return *pinned;
    return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
}

} // namespace skyvane::Clock
