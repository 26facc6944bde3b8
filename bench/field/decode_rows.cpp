#include "bench/field/measure.h"
#include "bench/field/rows.h"
#include "bench/synthetic_sky.h"
#include "core/model/fields.h"
#include "platform/text/format.h"

#include <QJsonDocument>

#include <functional>
#include <memory>
#include <nlohmann/json.hpp>

namespace skyvane::bench {

namespace {

/// The mean CPU time of one reading of the answer, microseconds; what it made is freed off the clock.
template <class Read>
std::function<double()> each(Read read, const std::string& answer, std::size_t times)
{
    return [=, &answer] {
        double whole = 0;
        for (std::size_t time = 0; time < times; ++time) {
            std::optional<decltype(read(answer))> made;
            whole += cpuMicroseconds([&] { made.emplace(read(answer)); });
            use(made);
        }
        return whole / static_cast<double>(times);
    };
}

std::unique_ptr<simdjson::dom::parser> parseBarely(const std::string& answer)
{
    auto parser = std::make_unique<simdjson::dom::parser>();
    use(parser->parse(answer).value_unsafe());
    return parser;
}

APIResponse decode(const std::string& answer)
{
    return JSON::decodeText<APIResponse>(answer);
}

nlohmann::json parseWithWriter(const std::string& answer)
{
    return nlohmann::json::parse(answer);
}

QJsonDocument parseWithToolkit(const std::string& answer)
{
    return QJsonDocument::fromJson(
        QByteArray::fromRawData(answer.data(), static_cast<qsizetype>(answer.size())));
}

} // namespace

Rows decodeRows()
{
    Rows rows;
    std::vector<double> anAircraft;
    for (const std::size_t count : {10U, 100U, 1000U, 5000U}) {
        const std::string answer = syntheticAnswer(count);
        const std::size_t times = std::max<std::size_t>(1, 2000 / count);
        const auto medians = interleaved(15,
            {each(decode, answer, times), each(parseBarely, answer, times),
                each(parseWithWriter, answer, times), each(parseWithToolkit, answer, times)});
        const std::string what = "decode " + std::to_string(count) + " aircraft into records";
        const auto target = count == 5000 ? std::optional{Target{.most = 1.5}} : std::nullopt;
        rows.push_back({what, "µs", medians[0], "simdjson, bare parse", medians[1], target});
        rows.push_back({what, "µs", medians[0], "nlohmann-json, bare parse", medians[2], Target{.most = 1}});
        rows.push_back({what, "µs", medians[0], "Qt's JSON, bare parse", medians[3], Target{.most = 1}});
        anAircraft.push_back(medians[0] / static_cast<double>(count));
    }
    rows.push_back({"one of 5000 decoded aircraft", "µs", anAircraft.back(), "one of 100", anAircraft[1],
        Target{.most = 1.5}});
    return rows;
}

} // namespace skyvane::bench
