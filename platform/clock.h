#pragma once

#include <chrono>

namespace skyvane {

/// A moment of the wall clock, to the millisecond.
using Date = std::chrono::sys_time<std::chrono::milliseconds>;

/// The wall clock: the system's, unless a `Pinned<Date>` stands in for it.
namespace Clock {

Date now();

} // namespace Clock

} // namespace skyvane
