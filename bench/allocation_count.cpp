#include "bench/allocation_count.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

thread_local std::uint64_t count = 0;

} // namespace

std::uint64_t skyvane::bench::allocationCount()
{
    return count;
}

void* operator new(std::size_t size)
{
    ++count;
    if (void* memory = std::malloc(size > 0 ? size : 1))
        return memory;
    throw std::bad_alloc{};
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
