#include "widgets/sky_provider.h"

#include "alerts/sky_alerts.h"
#include "core/config/shared_state.h"
#include "core/feed/adsb.h"
#include "core/views/sample_entry.h"

#include <chrono>
#include <string>
#include <utility>

namespace skyvane {

namespace {

constexpr std::chrono::seconds reloadInterval{300};

SkyEntry liveEntry(const Transport& transport, const std::stop_token& stop)
{
    const auto config = SharedState::read();
    if (!config)
        return SkyEntry::around(std::nullopt);

    std::vector<Aircraft> aircraft;
    try {
        aircraft = ADSB::fetch(config->home, config->radiusNM, transport, stop);
    } catch (const CancellationError&) {
        throw;
    } catch (...) {
        // An empty sky; the widgets show no errors.
    }
    return SkyEntry::around(config, std::move(aircraft));
}

SkyTimeline timelineOf(SkyEntry entry)
{
    return {.entries = {std::move(entry)}, .reloadAfter = Clock::now() + reloadInterval};
}

} // namespace

SkyEntry SkyProvider::placeholder() const
{
    return sampleEntry();
}

SkyEntry SkyProvider::getSnapshot(bool isPreview, const std::stop_token& stop) const
{
    return isPreview ? sampleEntry() : liveEntry(transport, stop);
}

SkyTimeline SkyProvider::getTimeline(const std::stop_token& stop) const
{
    return timelineOf(liveEntry(transport, stop));
}

SkyTimeline SkyProvider::getTimeline(const SkyAlertRules& rules, const std::stop_token& stop) const
{
    std::string answer; // The last, which the aircraft are of.
    const Transport overheard = [&](const URLRequest& request, const std::stop_token& asked) {
        URLResponse response = transport(request, asked);
        answer = response.body;
        return response;
    };
    SkyTimeline timeline = timelineOf(liveEntry(rules.overhead ? overheard : transport, stop));
    timeline.alerts = skyAlerts(timeline.entries.front(), rules, turnRatesIn(answer));
    return timeline;
}

} // namespace skyvane
