#include "widgets/extension/alerts.h"
#include "alerts/sky_alerts.h"
#include "core/feed/adsb.h"
#include "fuzz/fuzzer.h"
#include "platform/text/unicode.h"
#include "protocol/record_codec.h"
#include "widgets/extension/answers.h"

#include <algorithm>
#include <string>

namespace {

using namespace skyvane;

const HomeLocation home{.latitude = 51.5, .longitude = -0.12, .label = "Home"};
constexpr Date now{std::chrono::hours{500'000}};

/// Absent where they are none.
std::optional<AlertRules> rulesIn(std::string_view text)
{
    try {
        const JSON::Document document{text};
        auto rules = Protocol::read<AlertRules>(document.root());
        Extension::requireSound(rules);
        return rules;
    } catch (const JSON::DecodingError&) {
        return std::nullopt;
    }
}

std::vector<Aircraft> aircraftIn(const std::string& answer)
{
    const Transport transport = [&](const URLRequest&, const std::stop_token&) {
        return URLResponse{.status = 200, .body = answer};
    };
    try {
        return ADSB::fetch(home, 25, transport);
    } catch (const FetchError&) {
        return {};
    }
}

void check(const SkyAlert& alert, const SkyAlertRules& rules)
{
    for (const std::string& text : {alert.id, alert.title, alert.body}) {
        fuzz::require(Unicode::characters(text).size() <= 256);
        fuzz::require(std::ranges::none_of(text, [](char byte) { return byte >= 0 && byte < ' '; }));
    }
    fuzz::require(!alert.title.empty() && !alert.body.empty());
    fuzz::require(alert.at >= now);
    fuzz::require(alert.at == now || alert.at <= now + rules.overhead.value().within);
}

} // namespace

/// Rules on the first line, a source's answer behind it; what is told of it, on its way to a host.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text = fuzz::text(data, size);
    const std::size_t line = std::min(text.find('\n'), text.size());
    const auto asked = rulesIn(text.substr(0, line));
    if (!asked)
        return 0;
    const SkyAlertRules rules = Extension::skyAlertRules(*asked);
    const std::string answer{text.substr(std::min(line + 1, text.size()))};
    const SkyEntry sky{
        .date = now,
        .aircraft = aircraftIn(answer),
        .radiusNM = 25,
        .home = home,
        .isSample = false,
        .unit = "km",
    };
    const auto alerts = skyAlerts(sky, rules, turnRatesIn(answer));
    for (const SkyAlert& alert : alerts)
        check(alert, rules);
    const Protocol::WidgetTimelines result{.timelines = {}, .alerts = Extension::alertsThatFit(alerts)};
    constexpr std::size_t longest = Protocol::Limits::longestAlerts + Protocol::Limits::longestTimeline;
    const std::string written = Extension::resultLine("1", Protocol::write(result), longest);
    fuzz::require(written.find('\n') == written.size() - 1);
    fuzz::require(written.find("\"alerts\":[") != std::string::npos);
    return 0;
}
