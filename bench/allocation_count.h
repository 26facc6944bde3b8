#pragma once

#include <cstdint>

namespace skyvane::bench {

/// How often this thread has asked for memory by `new` since it began.
std::uint64_t allocationCount();

} // namespace skyvane::bench
