#include "desk/alerts/alert_choices.h"

#include "paint/to_qt.h"
#include "platform/json/object.h"
#include "protocol/limits.h"
#include "protocol/record_codec.h"

#include <algorithm>

namespace skyvane {

namespace {

constexpr std::int64_t version = 1;

/// Seconds that a pass is foreseen: those from one refresh to the next, and those between the announcement
/// and the pass.
constexpr double horizon = 480;

QString timeFormat()
{
    return QStringLiteral("HH:mm");
}

std::string written(QTime time)
{
    return time.toString(timeFormat()).toStdString();
}

QTime time(JSON::Value value)
{
    const QTime time = QTime::fromString(toQString(JSON::text(value)), timeFormat());
    if (!time.isValid())
        throw JSON::DecodingError{"is no time"};
    return time;
}

int degrees(JSON::Value value)
{
    const auto number = JSON::integer(value);
    return static_cast<int>(std::clamp<std::int64_t>(number, AlertChoices::lowest, AlertChoices::highest));
}

std::vector<std::string> patterns(JSON::Value value)
{
    auto list = JSON::listOf(JSON::text)(value);
    list.resize(std::min(list.size(), Protocol::Limits::mostPatterns));
    return list;
}

} // namespace

bool QuietHours::hold(QTime time) const
{
    return from <= until ? time >= from && time < until : time >= from || time < until;
}

std::optional<AlertRules> AlertChoices::rules() const
{
    if (!emergency && !military && !overhead && watch.empty())
        return std::nullopt;
    AlertRules rules;
    if (emergency)
        rules.emergency = true;
    if (military)
        rules.military = true;
    if (overhead)
        rules.overhead = OverheadRule{.elevation = static_cast<double>(elevation), .within = horizon};
    if (!watch.empty())
        rules.watch = watch;
    return rules;
}

std::string AlertChoices::encoded() const
{
    const Protocol::Json json{
        {"version", version},
        {"emergency", emergency},
        {"military", military},
        {"overhead", overhead},
        {"elevation", elevation},
        {"quiet", isQuiet},
        {"quietFrom", written(quietHours.from)},
        {"quietUntil", written(quietHours.until)},
        {"watch", watch},
    };
    return json.dump(2, ' ', /*ensure_ascii=*/false, Protocol::Json::error_handler_t::replace) + "\n";
}

std::optional<AlertChoices> AlertChoices::decoded(std::string_view text)
{
    try {
        const JSON::Document document{text};
        const JSON::Object members{document.root()};
        if (members.required("version", JSON::integer) != version)
            return std::nullopt;
        return AlertChoices{
            .emergency = members.required("emergency", JSON::boolean),
            .military = members.required("military", JSON::boolean),
            .overhead = members.required("overhead", JSON::boolean),
            .elevation = members.required("elevation", degrees),
            .isQuiet = members.required("quiet", JSON::boolean),
            .quietHours = {
                .from = members.required("quietFrom", time),
                .until = members.required("quietUntil", time),
            },
            .watch = members.required("watch", patterns),
        };
    } catch (const JSON::DecodingError&) {
        return std::nullopt;
    }
}

} // namespace skyvane
