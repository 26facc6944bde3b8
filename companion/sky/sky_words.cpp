#include "companion/sky/sky_words.h"

#include "companion/look/range_text.h"
#include "core/feed/search_radius.h"
#include "desk/text.h"
#include "platform/text/locale.h"

namespace skyvane::SkyWords {

namespace {

std::string range(const SkyEntry& entry)
{
    return rangeText(SearchRadius::asked(entry.radiusNM), entry.unit);
}

std::string count(const SkyEntry& entry)
{
    const std::size_t count = entry.aircraft.size();
    return localizedCount("%1 aircraft within %2", "%1 aircraft within %2", count,
        {groupedInteger(static_cast<std::int64_t>(count)), range(entry)});
}

} // namespace

std::string asOf(Date date)
{
    return localized("as of %1", {shortTime(date)});
}

Heading heading(const SkyReport& report)
{
    const auto& home = report.entry.home;
    const QString title = home && !home->label.empty() ? localizedText("The sky over %1", {home->label})
                                                       : localizedText("The sky");
    if (!report.hasAnswer)
        return {.title = title, .details = report.isAsking ? localizedText("Asking…") : QString{}};
    return {.title = title, .details = toQString(count(report.entry) + " · " + asOf(report.entry.date))};
}

std::optional<EmptySky::Words> instead(const SkyReport& report)
{
    if (!report.entry.home)
        return EmptySky::Words{
            .title = localizedText("Where is home?"),
            .explanation = localizedText("Skyvane shows the aircraft around it."),
            .action = localizedText("Set your home…"),
        };
    if (!report.entry.aircraft.empty())
        return std::nullopt;
    const QString askAgain = localizedText("Ask again");
    if (!report.problem.empty())
        return EmptySky::Words{
            .title = localizedText("No answer"),
            .explanation = toQString(report.problem),
            .action = askAgain,
            .details = toQString(report.details),
        };
    if (report.hasAnswer)
        return EmptySky::Words{
            .title = localizedText("Quiet skies"),
            .explanation
            = localizedText("No aircraft within %1, %2.", {range(report.entry), asOf(report.entry.date)}),
            .action = askAgain,
        };
    if (report.isAsking)
        return EmptySky::Words{.title = localizedText("Looking at the sky…")};
    return EmptySky::Words{
        .title = localizedText("Not asked yet"),
        .explanation = {},
        .action = localizedText("Show the sky"),
    };
}

NoticeBar::Words notice(const SkyReport& report)
{
    if (report.problem.empty() || report.entry.aircraft.empty())
        return {};
    return {
        .text = localizedText(
            "What is shown here is %1. The last try failed: %2", {asOf(report.entry.date), report.problem}),
        .details = toQString(report.details),
    };
}

} // namespace skyvane::SkyWords
