#include "companion/sky/sky_words.h"

#include "companion/look/range_text.h"
#include "desk/text.h"
#include "platform/text/locale.h"
#include "platform/text/localized.h"

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
        return toQString(localized("1 aircraft within %1")).arg(range(report.entry));
    return toQString(localized("%1 aircraft within %2"))
        .arg(toQString(groupedInteger(number)), range(report.entry));
}

QString time(const SkyEntry& entry)
{
    return toQString(localized("as of ") + shortTime(entry.date));
}

} // namespace

Heading heading(const SkyReport& report)
{
    const auto& home = report.entry.home;
    const QString title = home && !home->label.empty()
        ? toQString(localized("The sky over %1")).arg(toQString(home->label))
        : toQString(localized("The sky"));
    if (!report.hasAnswer)
        return {.title = title, .details = report.isAsking ? toQString(localized("Asking…")) : QString{}};
    return {.title = title, .details = count(report) + QStringLiteral(" · ") + time(report.entry)};
}

std::optional<EmptySky::Words> instead(const SkyReport& report)
{
    if (!report.entry.home)
        return EmptySky::Words{
            .title = toQString(localized("Where is home?")),
            .explanation = toQString(localized("Skyvane shows the aircraft around it.")),
            .action = toQString(localized("Set your home…")),
        };
    if (!report.entry.aircraft.empty())
        return std::nullopt;
    const QString askAgain = toQString(localized("Ask again"));
    if (!report.problem.empty())
        return EmptySky::Words{
            .title = toQString(localized("No answer")),
            .explanation = toQString(report.problem),
            .action = askAgain,
        };
    if (report.hasAnswer)
        return EmptySky::Words{
            .title = toQString(localized("Quiet skies")),
            .explanation
            = toQString(localized("No aircraft within %1, %2.")).arg(range(report.entry), time(report.entry)),
            .action = askAgain,
        };
    if (report.isAsking)
        return EmptySky::Words{.title = toQString(localized("Looking at the sky…"))};
    return EmptySky::Words{
        .title = toQString(localized("Not asked yet")),
        .explanation = {},
        .action = toQString(localized("Show the sky")),
    };
}

QString notice(const SkyReport& report)
{
    if (report.problem.empty() || report.entry.aircraft.empty())
        return {};
    return toQString(localized("What is shown here is %1. The last try failed: %2"))
        .arg(time(report.entry), toQString(report.problem));
}

} // namespace skyvane::SkyWords
