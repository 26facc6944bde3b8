#include "alerts/sky_alerts.h"

#include "alerts/alert_words.h"
#include "alerts/closest_approach.h"
#include "alerts/straight_flight.h"
#include "alerts/watch_list.h"
#include "core/views/deep_link_url.h"
#include "core/views/sample_entry.h"
#include "platform/text/printable.h"

#include <algorithm>
#include <tuple>
#include <unordered_set>
#include <utility>

namespace skyvane {

namespace {

enum class Reason { emergency, watched, overhead, military }; ///< The most urgent first.

std::string nameOf(Reason reason)
{
    switch (reason) {
    case Reason::emergency:
        return "emergency";
    case Reason::watched:
        return "watch";
    case Reason::overhead:
        return "overhead";
    case Reason::military:
        break;
    }
    return "military";
}

std::string identity(const Aircraft& aircraft, Reason reason)
{
    constexpr std::size_t enough = 512; // Bytes of an address of megabytes.
    return Unicode::oneLine(nameOf(reason) + "/" + aircraft.hex.substr(0, enough));
}

struct Found {
    Reason reason;
    SkyAlert alert;
};

class Search {
public:
    Search(const SkyEntry& sky, const SkyAlertRules& rules, const TurnRates& turnRates)
        : m_sky(sky)
        , m_rules(rules)
        , m_turnRates(turnRates)
        , m_watch(rules.watch)
        , m_observer{.home = sky.home, .unit = sky.unit}
    {
    }

    std::vector<Found> all()
    {
        std::unordered_set<std::string_view> seen;
        for (const Aircraft& aircraft : m_sky.aircraft) {
            if (!seen.insert(aircraft.hex).second)
                continue;
            lookAt(aircraft);
            lookAhead(aircraft);
        }
        return std::move(m_found);
    }

private:
    void lookAt(const Aircraft& aircraft)
    {
        if (m_rules.emergency && aircraft.isEmergency())
            add(aircraft, Reason::emergency, AlertWords::emergency(aircraft, m_observer), m_sky.date);
        else if (m_watch.names(aircraft))
            add(aircraft, Reason::watched, AlertWords::watched(aircraft, m_observer), m_sky.date);
        else if (m_rules.military && aircraft.isMilitary())
            add(aircraft, Reason::military, AlertWords::military(aircraft, m_observer), m_sky.date);
    }

    void lookAhead(const Aircraft& aircraft)
    {
        if (!m_rules.overhead || !m_sky.home || !fliesStraight(aircraft, turnRateOf(aircraft)))
            return;
        const auto pass = closestApproach(
            aircraft, {.latitude = m_sky.home->latitude, .longitude = m_sky.home->longitude});
        if (!pass || pass->in.count() < 0 || pass->in > m_rules.overhead->within
            || pass->elevationDeg < m_rules.overhead->elevationDeg)
            return;
        const auto in = std::chrono::round<std::chrono::milliseconds>(pass->in);
        const Date at = std::max<Date>(m_sky.date, m_sky.date + in - timeToLookUp);
        add(aircraft, Reason::overhead, AlertWords::overhead(aircraft, *pass, m_sky.date + in - at), at);
    }

    std::optional<double> turnRateOf(const Aircraft& aircraft) const
    {
        const auto found = m_turnRates.find(aircraft.hex);
        return found == m_turnRates.end() ? std::nullopt : std::optional{found->second};
    }

    void add(const Aircraft& aircraft, Reason reason, AlertWords::Words words, Date at)
    {
        m_found.push_back({
            .reason = reason,
            .alert = {
                .id = identity(aircraft, reason),
                .at = at,
                .title = std::move(words.title),
                .body = std::move(words.body),
                .url = DeepLinkURL::aircraft(aircraft.hex),
            },
        });
    }

    const SkyEntry& m_sky;
    const SkyAlertRules& m_rules;
    const TurnRates& m_turnRates;
    WatchList m_watch;
    AlertWords::Observer m_observer;
    std::vector<Found> m_found{};
};

} // namespace

std::vector<SkyAlert> skyAlerts(const SkyEntry& sky, const SkyAlertRules& rules, const TurnRates& turnRates)
{
    std::vector<Found> found = Search{sky, rules, turnRates}.all();
    std::ranges::stable_sort(found, {}, [](const Found& one) {
        return std::tuple{one.reason, one.alert.at};
    });
    std::vector<SkyAlert> alerts;
    alerts.reserve(found.size());
    for (Found& one : found)
        alerts.push_back(std::move(one.alert));
    return alerts;
}

SkyAlert sampleSkyAlert()
{
    const Aircraft aircraft = sampleEntry().aircraft.front();
    const SkyPosition pass{.in = timeToLookUp, .distanceNM = 2, .bearingDeg = 225, .elevationDeg = 62};
    AlertWords::Words words = AlertWords::overhead(aircraft, pass, pass.in);
    return {
        .id = "sample",
        .at = Clock::now(),
        .title = std::move(words.title),
        .body = std::move(words.body),
        .url = DeepLinkURL::open(),
    };
}

} // namespace skyvane
