#include "bench/synthetic_sky.h"

#include "core/feed/adsb.h"
#include "core/model/fields.h"

#include <benchmark/benchmark.h>

#include <simdjson.h>

namespace skyvane::bench {
namespace {

void countBytes(benchmark::State& state, const std::string& answer)
{
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(answer.size()));
}

/// What the JSON library alone takes for the same bytes.
void bareParse(benchmark::State& state)
{
    const std::string answer = syntheticAnswer(static_cast<std::size_t>(state.range(0)));
    for ([[maybe_unused]] const auto iteration : state) {
        simdjson::dom::parser parser;
        benchmark::DoNotOptimize(parser.parse(answer).value_unsafe());
    }
    countBytes(state, answer);
}

void decode(benchmark::State& state)
{
    const std::string answer = syntheticAnswer(static_cast<std::size_t>(state.range(0)));
    for ([[maybe_unused]] const auto iteration : state)
        benchmark::DoNotOptimize(JSON::decodeText<APIResponse>(answer));
    countBytes(state, answer);
}

/// Decoding, selection and order: everything but the transfer.
void fetch(benchmark::State& state)
{
    const std::string answer = syntheticAnswer(static_cast<std::size_t>(state.range(0)));
    const Transport transport = [&](const URLRequest&, const std::stop_token&) {
        return URLResponse{.status = 200, .body = answer};
    };
    const HomeLocation home{.latitude = 51.5, .longitude = -0.12, .label = "Home"};
    for ([[maybe_unused]] const auto iteration : state)
        benchmark::DoNotOptimize(ADSB::fetch(home, 250, transport));
    countBytes(state, answer);
}

BENCHMARK(bareParse)->Arg(10)->Arg(100)->Arg(1000)->Arg(5000)->Unit(benchmark::kMicrosecond);
BENCHMARK(decode)->Arg(10)->Arg(100)->Arg(1000)->Arg(5000)->Unit(benchmark::kMicrosecond);
BENCHMARK(fetch)->Arg(5000)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace skyvane::bench
