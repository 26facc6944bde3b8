#include "bench/allocation_count.h"

#include "core/enrichment/aircraft_types.h"
#include "core/enrichment/airlines.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cctype>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

namespace skyvane::bench {
namespace {

using Table = std::unordered_map<std::string, std::string>;

/// The table's keys, shuffled, so that no two runs of the same key follow each other.
std::vector<std::string> keysOf(const TextTable& table)
{
    std::vector<std::string> keys;
    for (const auto& [key, value] : table)
        keys.push_back(key);
    std::ranges::sort(keys);
    std::shuffle(keys.begin(), keys.end(), std::mt19937{5});
    return keys;
}

/// As the feed sends them: filled up with blanks to eight characters.
std::vector<std::string> callsigns()
{
    std::vector<std::string> list = keysOf(Airlines::table());
    std::erase(list, "N");
    for (std::string& text : list)
        text.append("123").resize(8, ' ');
    return list;
}

std::vector<std::string> inLowerCase(std::vector<std::string> texts)
{
    for (std::string& text : texts)
        std::ranges::transform(text, text.begin(),
            [](char letter) { return static_cast<char>(std::tolower(static_cast<unsigned char>(letter))); });
    return texts;
}

/// One look-up an iteration, through the keys in turn; counts what each allocates.
template <class LookUp>
void measure(benchmark::State& state, const std::vector<std::string>& keys, LookUp lookUp)
{
    benchmark::DoNotOptimize(lookUp(keys.front()));
    std::size_t next = 0;
    const std::uint64_t before = allocationCount();
    for ([[maybe_unused]] const auto iteration : state) {
        benchmark::DoNotOptimize(lookUp(keys[next]));
        next = next + 1 == keys.size() ? 0 : next + 1;
    }
    const auto allocations = static_cast<double>(allocationCount() - before);
    state.counters["allocations"] = benchmark::Counter(allocations, benchmark::Counter::kAvgIterations);
    state.SetItemsProcessed(state.iterations());
}

void plainTable(benchmark::State& state, const TextTable& source)
{
    const Table table{source.begin(), source.end()};
    measure(state, keysOf(source), [&](const std::string& key) { return table.find(key); });
}

void typeName(benchmark::State& state)
{
    measure(state, keysOf(AircraftTypes::table()), AircraftTypes::name);
}

void typeNameInLowerCase(benchmark::State& state)
{
    measure(state, inLowerCase(keysOf(AircraftTypes::table())), AircraftTypes::name);
}

void typeNameUnknown(benchmark::State& state)
{
    measure(state, {"ZZZZ", "ZZZY", "ZZZX"}, AircraftTypes::name);
}

void airlineName(benchmark::State& state)
{
    measure(state, callsigns(), Airlines::name);
}

void airlineNameInLowerCase(benchmark::State& state)
{
    measure(state, inLowerCase(callsigns()), Airlines::name);
}

void airlineNameOfARegistration(benchmark::State& state)
{
    measure(state, {"N123AB  ", "GABCD   ", "D-EABC  "}, Airlines::name);
}

BENCHMARK_CAPTURE(plainTable, types, AircraftTypes::table());
BENCHMARK(typeName);
BENCHMARK(typeNameInLowerCase);
BENCHMARK(typeNameUnknown);
BENCHMARK_CAPTURE(plainTable, airlines, Airlines::table());
BENCHMARK(airlineName);
BENCHMARK(airlineNameInLowerCase);
BENCHMARK(airlineNameOfARegistration);

} // namespace
} // namespace skyvane::bench
