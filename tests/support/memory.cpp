#include "tests/support/memory.h"

#include "tests/support/process_status.h"

#include <unistd.h>

#include <fstream>

#ifndef __has_feature
#define __has_feature(feature) 0
#endif
#if defined(__SANITIZE_ADDRESS__) || __has_feature(address_sanitizer)
#include <atomic>
#define SKYVANE_COUNTS_ALLOCATIONS

extern "C" {
// Not every compiler that brings the sanitizer brings its header.
int __sanitizer_install_malloc_and_free_hooks(
    void (*onAllocation)(const volatile void*, std::size_t), void (*onRelease)(const volatile void*));
std::size_t __sanitizer_get_allocated_size(const volatile void*);
}
#endif

namespace skyvane::test {

#ifdef SKYVANE_COUNTS_ALLOCATIONS

namespace {

std::atomic<std::size_t> inUse{0};
std::atomic<std::size_t> peak{0};

void countAllocation(const volatile void*, std::size_t size)
{
    const std::size_t now = inUse += size;
    for (std::size_t before = peak; now > before && !peak.compare_exchange_weak(before, now);) { }
}

void countRelease(const volatile void* block)
{
    inUse -= __sanitizer_get_allocated_size(block);
}

/// The sanitizer itself keeps memory that was freed for a while, so that its own peak says little.
[[maybe_unused]] const int counting
    = __sanitizer_install_malloc_and_free_hooks(countAllocation, countRelease);

} // namespace

std::size_t memoryInUse()
{
    return inUse;
}

std::size_t memoryPeak()
{
    return peak;
}

void forgetMemoryPeak()
{
    peak = inUse.load();
}

#else

std::size_t memoryInUse()
{
    return ProcessStatus::number(getpid(), "VmRSS") << 10;
}

std::size_t memoryPeak()
{
    return ProcessStatus::number(getpid(), "VmHWM") << 10;
}

void forgetMemoryPeak()
{
    std::ofstream{"/proc/self/clear_refs"} << "5";
}

#endif

std::size_t openDescriptors()
{
    return ProcessStatus::openDescriptors(getpid()) - 1; // Less the listing's own.
}

} // namespace skyvane::test
