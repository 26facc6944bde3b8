#include "bench/field/measure.h"

#include <algorithm>
#include <ctime>

namespace skyvane::bench {

namespace {

double processMicroseconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e6 + static_cast<double>(time.tv_nsec) / 1e3;
}

} // namespace

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

double cpuMicroseconds(const std::function<void()>& work)
{
    const double start = processMicroseconds();
    work();
    return processMicroseconds() - start;
}

std::vector<double> interleaved(std::size_t turns, const std::vector<std::function<double()>>& measurements)
{
    std::vector<std::vector<double>> samples(measurements.size());
    for (std::size_t turn = 0; turn <= turns; ++turn) {
        for (std::size_t index = 0; index < measurements.size(); ++index) {
            const double sample = measurements[index]();
            if (turn > 0)
                samples[index].push_back(sample);
        }
    }
    std::vector<double> medians(samples.size());
    std::ranges::transform(samples, medians.begin(), [](auto& list) { return median(std::move(list)); });
    return medians;
}

} // namespace skyvane::bench
