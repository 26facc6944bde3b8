#include "companion/sky/sky_words.h"

#include "companion/look/range_text.h"
#include "desk/text.h"
#include "platform/text/locale.h"

namespace skyvane::SkyWords {

namespace {

QString range(const SkyEntry& entry)
{
    return toQString(rangeText(askedRadiusNM(entry.radiusNM), entry.unit));
}

QString count(const SkyReport& report)
{
    const auto number = static_cast<std::int64_t>(report.entry.aircraft.size());
    if (number == 1)
        return localizedText("1 aircraft within %1").arg(range(report.entry));
    return localizedText("%1 aircraft within %2").arg(toQString(groupedInteger(number)), range(report.entry));
}

QString time(const SkyEntry& entry)
{
    return localizedText("as of ") + toQString(shortTime(entry.date));
}

} // namespace

Heading heading(const SkyReport& report)
{
    const auto& home = report.entry.home;
    const QString title = home && !home->label.empty()
        ? localizedText("The sky over %1").arg(toQString(home->label))
        : localizedText("The sky");
    if (!report.hasAnswer)
        return {.title = title, .details = report.isAsking ? localizedText("Asking…") : QString{}};
    return {.title = title, .details = count(report) + QStringLiteral(" · ") + time(report.entry)};
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
        };
    if (report.hasAnswer)
        return EmptySky::Words{
            .title = localizedText("Quiet skies"),
            .explanation
            = localizedText("No aircraft within %1, %2.").arg(range(report.entry), time(report.entry)),
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

QString notice(const SkyReport& report)
{
    if (report.problem.empty() || report.entry.aircraft.empty())
        return {};
    return localizedText("What is shown here is %1. The last try failed: %2")
        .arg(time(report.entry), toQString(report.problem));
}

} // namespace skyvane::SkyWords
