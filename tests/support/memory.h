#pragma once

#include <cstddef>

namespace skyvane::test {

/// What this process holds in memory, bytes: with the address sanitizer what is allocated and not yet freed,
/// else what is resident.
std::size_t memoryInUse();

/// The most that was in use at once since `forgetMemoryPeak`.
std::size_t memoryPeak();
void forgetMemoryPeak();

/// How many descriptors this process has open.
std::size_t openDescriptors();

} // namespace skyvane::test
