#include "bench/field/measure.h"
#include "bench/field/rows.h"
#include "bench/synthetic_sky.h"
#include "core/feed/adsb.h"

#include <simdjson.h>

namespace skyvane::bench {

namespace {

double parseBarely(const std::string& answer)
{
    simdjson::dom::parser parser;
    return cpuMicroseconds([&] { use(parser.parse(answer).value_unsafe()); });
}

/// What is freed after it is used is freed off the clock.
double decodeAndSelect(std::string answer)
{
    const HomeLocation home{.latitude = 51.5, .longitude = -0.12, .label = "Home"};
    const Transport transport = [&](const URLRequest&, const std::stop_token&) {
        return URLResponse{.status = 200, .body = std::move(answer)};
    };
    std::vector<Aircraft> made;
    return cpuMicroseconds([&] { made = ADSB::fetch(home, 250, transport); });
}

} // namespace

Rows decodeRows()
{
    const std::string answer = syntheticAnswer(700);
    const auto medians
        = interleaved(101, {[&] { return decodeAndSelect(answer); }, [&] { return parseBarely(answer); }});
    return {{"decode 700 aircraft and select", "µs", medians[0], "simdjson, bare parse", medians[1],
        Target{.most = 1.6}}};
}

} // namespace skyvane::bench
