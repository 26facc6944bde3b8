#pragma once

#include <barrier>
#include <cstddef>
#include <thread>
#include <vector>

namespace skyvane::test {

/// What so many threads get from the same call when they all begin it at once.
template <class Call>
auto race(std::size_t count, Call call)
{
    std::barrier start{static_cast<std::ptrdiff_t>(count)};
    std::vector<decltype(call())> results(count);
    {
        std::vector<std::jthread> threads;
        threads.reserve(count);
        for (auto& result : results)
            threads.emplace_back([&] {
                start.arrive_and_wait();
                result = call();
            });
    }
    return results;
}

} // namespace skyvane::test
