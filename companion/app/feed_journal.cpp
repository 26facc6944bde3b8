#include "companion/app/feed_journal.h"

#include "platform/text/printable.h"

#include <QLoggingCategory>

#include <utility>

namespace skyvane {

namespace {

Q_LOGGING_CATEGORY(journal, "skyvane.companion.feed")

std::string lineOf(const SkyReport& report)
{
    return Unicode::oneLine(
        report.details.empty() ? report.problem : report.problem + " (" + report.details + ")",
        Unicode::longestLine);
}

} // namespace

FeedJournal::FeedJournal(const SkyFeed& feed)
{
    connect(&feed, &SkyFeed::changed, this, [this, &feed] { tell(feed.report()); });
}

void FeedJournal::tell(const SkyReport& report)
{
    std::string line = lineOf(report);
    if (line == m_told)
        return;
    if (!line.empty())
        qCWarning(journal, "%s", line.c_str());
    m_told = std::move(line);
}

} // namespace skyvane
