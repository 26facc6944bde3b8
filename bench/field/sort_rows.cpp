#include "bench/field/measure.h"
#include "bench/field/rows.h"
#include "bench/synthetic_sky.h"
#include "core/feed/adsb.h"
#include "core/model/fields.h"

#include <algorithm>

namespace skyvane::bench {

namespace {

std::vector<double> distances(const std::string& answer)
{
    std::vector<double> list;
    for (const Aircraft& aircraft : JSON::decodeText<APIResponse>(answer).ac.value())
        list.push_back(aircraft.distanceNM.value());
    return list;
}

/// What fetching takes once the answer is there.
double fetchAnswer(std::string answer)
{
    const HomeLocation home{.latitude = 51.5, .longitude = -0.12, .label = "Home"};
    const Transport transport = [&](const URLRequest&, const std::stop_token&) {
        return URLResponse{.status = 200, .body = std::move(answer)};
    };
    return cpuMicroseconds([&] { use(ADSB::fetch(home, 250, transport)); });
}

} // namespace

Rows sortRows()
{
    Rows rows;
    for (const std::size_t count : {1000U, 5000U}) {
        const std::string answer = syntheticAnswer(count);
        const std::vector<double> unsorted = distances(answer);
        const auto medians = interleaved(41,
            {
                [&] { return fetchAnswer(answer); },
                [&] { return cpuMicroseconds([&] { use(JSON::decodeText<APIResponse>(answer)); }); },
                [&] {
                    std::vector<double> list = unsorted;
                    return cpuMicroseconds([&] { std::stable_sort(list.begin(), list.end()); });
                },
            });
        rows.push_back({"select and sort " + std::to_string(count) + " records", "µs",
            medians[0] - medians[1], "std::stable_sort on the distances alone", medians[2],
            count == 5000 ? std::optional{Target{.most = 2}} : std::nullopt});
    }
    return rows;
}

} // namespace skyvane::bench
