#include "companion/aircraft/watch_words.h"

#include "companion/look/range_text.h"
#include "companion/sky/sky_words.h"
#include "core/feed/search_radius.h"
#include "desk/text.h"
#include "platform/text/unicode.h"

#include <QStringList>

namespace skyvane::WatchWords {

namespace {

std::string address(const AircraftWatch& watch)
{
    return Unicode::uppercased(watch.hex());
}

} // namespace

Heading heading(const AircraftWatch& watch, const SkyReport& report)
{
    QStringList details;
    if (watch.aircraft())
        details += toQString(SkyWords::asOf(watch.seenAt()));
    if (report.isAsking)
        details += localizedText("Asking…");
    return {
        .title = localizedText("Aircraft"),
        .details = details.join(QStringLiteral(" · ")),
        .window = toQString(watch.aircraft() ? watch.aircraft()->displayName() : address(watch)),
    };
}

std::optional<EmptySky::Words> instead(const AircraftWatch& watch, const SkyReport& report)
{
    switch (watch.state()) {
    case AircraftWatch::State::noHome:
        return SkyWords::instead(report);
    case AircraftWatch::State::lookedFor:
        return EmptySky::Words{.title = localizedText("Looking for %1…", {address(watch)})};
    case AircraftWatch::State::noAnswer:
        return SkyWords::noAnswer(report);
    case AircraftWatch::State::elsewhere:
        return EmptySky::Words{
            .title = localizedText("%1 is not in range", {address(watch)}),
            .explanation = localizedText("It is not within %1 of home, %2.",
                {rangeText(SearchRadius::asked(report.entry.radiusNM), report.entry.unit),
                    SkyWords::asOf(report.entry.date)}),
            .action = localizedText("Ask again"),
        };
    case AircraftWatch::State::inRange:
    case AircraftWatch::State::gone:
        return std::nullopt;
    }
    return std::nullopt;
}

NoticeBar::Words notice(const AircraftWatch& watch, const SkyReport& report)
{
    if (watch.state() == AircraftWatch::State::gone)
        return {.text = localizedText("It is no longer in range, %1. This is what was last seen of it, %2.",
                    {SkyWords::asOf(report.entry.date), SkyWords::asOf(watch.seenAt())})};
    if (watch.state() == AircraftWatch::State::inRange && !report.problem.empty())
        return SkyWords::notice(report);
    return {};
}

} // namespace skyvane::WatchWords
