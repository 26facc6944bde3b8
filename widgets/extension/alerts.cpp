#include "widgets/extension/alerts.h"

#include "platform/json/value.h"
#include "protocol/limits.h"
#include "protocol/record_codec.h"

#include <chrono>
#include <string>

namespace skyvane::Extension {

namespace {

namespace Limits = Protocol::Limits;

JSON::DecodingError wrongRule(const std::string& expected, const std::string& found)
{
    return JSON::DecodingError::mismatch(expected, found);
}

void requireSound(const OverheadRule& rule)
{
    constexpr double zenith = 90;
    if (!(rule.elevation >= 0 && rule.elevation <= zenith))
        throw wrongRule("an angle of 0 to 90 degrees", "another").inMember("elevation");
    if (!(rule.within > 0 && rule.within <= Limits::longestWithin))
        throw wrongRule("a time above 0 and up to 3600 seconds", "another").inMember("within");
}

} // namespace

void requireSound(const AlertRules& rules)
{
    constexpr std::string_view member = "alerts";
    try {
        if (rules.overhead)
            requireSound(*rules.overhead);
    } catch (const JSON::DecodingError& problem) {
        throw problem.inMember("overhead").inMember(member);
    }
    const std::size_t patterns = rules.watch ? rules.watch->size() : 0;
    if (patterns > Limits::mostPatterns)
        throw wrongRule("an array of at most " + std::to_string(Limits::mostPatterns),
            "one of " + std::to_string(patterns))
            .inMember("watch")
            .inMember(member);
}

SkyAlertRules skyAlertRules(const AlertRules& rules)
{
    SkyAlertRules found{
        .emergency = rules.emergency.value_or(false),
        .military = rules.military.value_or(false),
        .watch = rules.watch.value_or(std::vector<std::string>{}),
    };
    if (rules.overhead) {
        const std::chrono::duration<double> within{rules.overhead->within};
        found.overhead = SkyAlertRules::Overhead{
            .elevationDeg = rules.overhead->elevation,
            .within = std::chrono::round<std::chrono::milliseconds>(within),
        };
    }
    return found;
}

std::vector<Alert> alertsThatFit(const std::vector<SkyAlert>& alerts)
{
    constexpr auto replace = Protocol::Json::error_handler_t::replace;
    std::size_t size = 0;
    std::vector<Alert> fitting;
    for (const SkyAlert& alert : alerts) {
        const Alert& next = fitting.emplace_back(Alert{
            .id = alert.id, .at = alert.at, .title = alert.title, .body = alert.body, .url = alert.url});
        size += Protocol::write(next).dump(-1, ' ', /*ensure_ascii=*/false, replace).size() + 1;
        if (size > Limits::longestAlerts) {
            fitting.pop_back();
            break;
        }
    }
    return fitting;
}

} // namespace skyvane::Extension
