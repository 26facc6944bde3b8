#include "companion/aircraft/watch_words.h"

#include "companion/look/range_text.h"
#include "companion/sky/sky_words.h"
#include "core/feed/search_radius.h"
#include "desk/text.h"
#include "platform/text/unicode.h"

namespace skyvane::WatchWords {

namespace {

std::string address(const AircraftWatch& watch)
{
    return Unicode::uppercased(watch.hex());
}

} // namespace

Heading heading(const AircraftWatch& watch)
{
    const QString title = localizedText("Aircraft");
    if (!watch.aircraft())
        return {.title = title, .window = toQString(address(watch))};
    return {
        .title = title,
        .details = toQString(SkyWords::asOf(watch.seenAt())),
        .window = toQString(watch.aircraft()->displayName()),
    };
}

std::optional<EmptySky::Words> instead(const AircraftWatch& watch, const SkyReport& report)
{
    const QString askAgain = localizedText("Ask again");
    switch (watch.state()) {
    case AircraftWatch::State::noHome:
        return SkyWords::instead(report);
    case AircraftWatch::State::lookedFor:
        return EmptySky::Words{.title = localizedText("Looking for %1…", {address(watch)})};
    case AircraftWatch::State::noAnswer:
        return EmptySky::Words{
            .title = localizedText("No answer"),
            .explanation = toQString(report.problem),
            .action = askAgain,
            .details = toQString(report.details),
        };
    case AircraftWatch::State::elsewhere:
        return EmptySky::Words{
            .title = localizedText("%1 is not in range", {address(watch)}),
            .explanation = localizedText("It is not within %1 of home, %2.",
                {rangeText(SearchRadius::asked(report.entry.radiusNM), report.entry.unit),
                    SkyWords::asOf(report.entry.date)}),
            .action = askAgain,
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
        return {.text = localizedText("It is no longer in range. This is what was last seen of it, %1.",
                    {SkyWords::asOf(watch.seenAt())})};
    if (watch.state() == AircraftWatch::State::inRange && !report.problem.empty())
        return SkyWords::notice(report);
    return {};
}

} // namespace skyvane::WatchWords
