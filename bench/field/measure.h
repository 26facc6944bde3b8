#pragma once

#include <cstddef>
#include <functional>
#include <vector>

namespace skyvane::bench {

double median(std::vector<double> values);

/// CPU time that the work takes, on all threads, microseconds; what else the machine does hardly shows.
double cpuMicroseconds(const std::function<void()>& work);

/// Runs every measurement in turn, so many turns after one that is not counted, and returns their medians:
/// what slows the machine for a while slows all of them.
std::vector<double> interleaved(std::size_t turns, const std::vector<std::function<double()>>& measurements);

/// Keeps the compiler from leaving out what makes the value.
template <class Value>
void use(const Value& value)
{
    asm volatile("" : : "r"(&value) : "memory");
}

} // namespace skyvane::bench
