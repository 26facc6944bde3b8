#pragma once

#include "platform/pinned.h"

#include <chrono>

namespace skyvane {

/// A moment of the wall clock, to the millisecond.
using Date = std::chrono::sys_time<std::chrono::milliseconds>;

/// The wall clock: the system's, unless a `Pinned<Date>` stands in for it.
namespace Clock {

inline Date now()
{
    if (const Date* pinned = Pinned<Date>::current())
        return *pinned;
    return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
}

} // namespace Clock

} // namespace skyvane
