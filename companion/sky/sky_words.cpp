#include "companion/sky/sky_words.h"

#include "companion/look/range_text.h"
#include "companion/sky/source_words.h"
#include "core/feed/search_radius.h"
#include "desk/text.h"
#include "platform/text/locale.h"

#include <QStringList>

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
    return localized("as of %1", {timeWithSeconds(date)});
}

Heading heading(const SkyReport& report)
{
    const auto& home = report.entry.home;
    const QString title = home && !home->label.empty() ? localizedText("The sky over %1", {home->label})
                                                       : localizedText("The sky");
    QStringList details;
    const bool isInVain = !report.problem.empty() && report.entry.aircraft.empty();
    if (report.hasAnswer && !isInVain)
        details += toQString(count(report.entry) + " · " + asOf(report.entry.date));
    else if (isInVain && report.triedAt)
        details += localizedText("Asked in vain at %1", {timeWithSeconds(*report.triedAt)});
    if (report.isAsking)
        details += localizedText("Asking…");
    return {.title = title, .details = details.join(QStringLiteral(" · "))};
}

EmptySky::Words noAnswer(const SkyReport& report)
{
    return {
        .title = SourceWords::isOffLine(report) ? localizedText("Off line") : localizedText("No answer"),
        .explanation = SourceWords::reasons(report),
        .action = localizedText("Ask again"),
        .details = toQString(report.details),
    };
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
    if (!report.problem.empty())
        return noAnswer(report);
    if (report.hasAnswer)
        return EmptySky::Words{
            .title = localizedText("Quiet skies"),
            .explanation
            = localizedText("No aircraft within %1, %2.", {range(report.entry), asOf(report.entry.date)}),
            .action = localizedText("Ask again"),
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
    const std::string tried = report.triedAt ? timeWithSeconds(*report.triedAt) : std::string{};
    return {
        .text = localizedText("What is shown here is %1. The last try, at %2, failed.",
                    {asOf(report.entry.date), tried})
            + QLatin1Char{'\n'} + SourceWords::reasons(report),
        .details = toQString(report.details),
    };
}

} // namespace skyvane::SkyWords
