#include "companion/feed/sky_feed.h"

#include "platform/clock.h"
#include "platform/text/printable.h"

#include <algorithm>
#include <utility>

namespace skyvane {

namespace {

/// With no more of any text than anybody is shown, and nothing in it that steers what is around it: a toolkit
/// takes minutes to lay out a megabyte.
std::vector<Aircraft> withShownTexts(std::vector<Aircraft> list)
{
    const auto cut = [](std::string& text) { text = Unicode::oneLine(std::move(text)); };
    for (Aircraft& aircraft : list) {
        cut(aircraft.hex);
        for (std::optional<std::string>* text :
            {&aircraft.flight, &aircraft.registration, &aircraft.typeCode, &aircraft.typeDescription,
                &aircraft.operatorName, &aircraft.squawk, &aircraft.emergency, &aircraft.category})
            if (*text)
                cut(**text);
    }
    return list;
}

/// The user's sky without aircraft; other programs may have named the home.
SkyEntry entryAround(const std::optional<SharedState::Config>& config)
{
    SkyEntry entry = SkyEntry::around(config);
    if (entry.home)
        entry.home->label = Unicode::oneLine(std::move(entry.home->label));
    return entry;
}

/// Whether both ask for the same aircraft.
bool isSameSky(const SkyEntry& one, const SkyEntry& other)
{
    return one.home == other.home && one.radiusNM == other.radiusNM;
}

} // namespace

SkyFeed::SkyFeed(Errands& errands, Transport transport, std::chrono::milliseconds interval)
    : m_errands(errands)
    , m_transport(std::move(transport))
    , m_interval(interval)
    , m_config(SharedState::read())
    , m_report{.entry = entryAround(m_config)}
{
    m_timer.setSingleShot(true);
    m_timer.callOnTimeout([this] { refresh(); });
}

void SkyFeed::refresh()
{
    readConfiguration();
    if (!m_config || m_report.isAsking) {
        emit changed();
        return;
    }
    m_report.isAsking = true;
    m_asking = m_errands.run([config = *m_config, transport = m_transport](
                                 std::stop_token stop) { return ask(config, transport, std::move(stop)); },
        [this](Outcome outcome) { take(std::move(outcome)); });
    holdOff();
    emit changed();
}

void SkyFeed::reload()
{
    const SkyEntry before = m_report.entry;
    readConfiguration();
    if (m_config && !isSameSky(before, m_report.entry))
        m_due = {};
    planNext();
    emit changed();
}

/// What was seen from another home, or was asked for there, counts no longer.
void SkyFeed::readConfiguration()
{
    m_config = SharedState::read();
    SkyEntry entry = entryAround(m_config);
    if (isSameSky(entry, m_report.entry)) {
        entry.date = m_report.entry.date;
        entry.aircraft = std::move(m_report.entry.aircraft);
        m_report.entry = std::move(entry);
    } else {
        m_asking = {};
        m_report = {.entry = std::move(entry)};
    }
}

SkyFeed::Outcome SkyFeed::ask(
    const SharedState::Config& config, const Transport& transport, std::stop_token stop)
{
    try {
        ADSB::Answer answer = ADSB::ask(config.home, config.radiusNM, transport, std::move(stop));
        Outcome outcome{
            .aircraft = withShownTexts(std::move(answer.aircraft)), .asked = std::move(answer.asked)};
        if (answer.problem) {
            outcome.problem = answer.problem->message;
            outcome.details = Unicode::oneLine(answer.problem->cause.details);
        }
        return outcome;
    } catch (const std::exception& error) {
        return {.aircraft = {}, .problem = error.what()};
    }
}

void SkyFeed::take(Outcome outcome)
{
    m_report.isAsking = false;
    m_report.problem = std::move(outcome.problem);
    m_report.details = std::move(outcome.details);
    m_report.asked = std::move(outcome.asked);
    m_report.triedAt = Clock::now();
    if (m_report.problem.empty()) {
        m_report.entry.date = Clock::now();
        m_report.entry.aircraft = std::move(outcome.aircraft);
        m_report.hasAnswer = true;
        ++m_report.answers;
    }
    emit changed();
}

void SkyFeed::setWatched(bool isWatched)
{
    m_isWatched = isWatched;
    planNext();
}

void SkyFeed::holdOff()
{
    m_due = std::chrono::steady_clock::now() + m_interval;
    planNext();
}

void SkyFeed::planNext()
{
    const auto wait = m_due - std::chrono::steady_clock::now();
    if (m_isWatched && m_config)
        m_timer.start(std::chrono::ceil<std::chrono::milliseconds>(std::max(wait, decltype(wait)::zero())));
    else
        m_timer.stop();
}

} // namespace skyvane
