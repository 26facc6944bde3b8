#include "companion/sky/source_words.h"

#include "core/feed/sources.h"
#include "desk/text.h"

#include <QStringList>

#include <algorithm>

namespace skyvane::SourceWords {

namespace {

/// As people know it: its website's name.
std::string nameOf(const ADSB::Inquiry& inquiry)
{
    const auto sources = ADSB::sources();
    const auto found = std::ranges::find(sources, inquiry.source, &ADSB::Source::name);
    return found == sources.end() ? inquiry.source : found->website;
}

QString statusSentence(const std::string& name, int status)
{
    constexpr int tooMany = 429;
    if (status == tooMany)
        return localizedText("%1 asks for patience: too many questions (%2).", {name, status});
    if (status == 401 || status == 403 || status == 451)
        return localizedText("%1 refuses to answer (%2).", {name, status});
    if (status >= 500)
        return localizedText("%1 is out of order (%2).", {name, status});
    return localizedText("%1 answers with an error (%2).", {name, status});
}

QString sentence(const ADSB::Inquiry& inquiry)
{
    const std::string name = nameOf(inquiry);
    const FetchCause& cause = *inquiry.problem;
    if (cause.status)
        return statusSentence(name, *cause.status);
    if (cause.problem == FetchProblem::notJSON)
        return localizedText(
            "%1: something else answers in its place. Does this network want you to log in first?", {name});
    if (cause.problem == FetchProblem::shape)
        return toQString(name + ": " + localized("The answer is not what was expected."));
    return toQString(name + ": " + description(cause.transfer.value_or(TransferProblem::other)));
}

/// Looking up the name or finding the way has failed.
bool isUnreachable(const ADSB::Inquiry& inquiry)
{
    return inquiry.problem
        && (inquiry.problem->transfer == TransferProblem::nameUnknown
            || inquiry.problem->transfer == TransferProblem::noRoute);
}

QString word(const ADSB::Inquiry& inquiry)
{
    if (!inquiry.problem)
        return inquiry.count > 0 ? localizedText("answered") : localizedText("hears nobody");
    if (inquiry.problem->status || inquiry.problem->transfer == TransferProblem::refused)
        return localizedText("refused");
    return localizedText("no answer");
}

} // namespace

QString reasons(const SkyReport& report)
{
    QStringList lines;
    for (const ADSB::Inquiry& inquiry : report.asked) {
        if (inquiry.problem)
            lines += sentence(inquiry);
    }
    return lines.isEmpty() ? toQString(report.problem) : lines.join(QLatin1Char{'\n'});
}

bool isOffLine(const SkyReport& report)
{
    return !report.asked.empty() && std::ranges::all_of(report.asked, isUnreachable);
}

std::vector<Credits::Remark> remarks(const SkyReport& report)
{
    std::vector<Credits::Remark> remarks;
    for (const ADSB::Inquiry& inquiry : report.asked)
        remarks.push_back({.source = inquiry.source, .text = word(inquiry)});
    return remarks;
}

} // namespace skyvane::SourceWords
