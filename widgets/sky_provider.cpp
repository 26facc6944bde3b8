#include "widgets/sky_provider.h"

#include "core/config/shared_state.h"
#include "core/feed/adsb.h"
#include "core/views/sample_entry.h"

#include <chrono>

namespace skyvane {

namespace {

constexpr std::chrono::seconds reloadInterval{300};

} // namespace

SkyEntry SkyProvider::placeholder() const
{
    return sampleEntry();
}

SkyEntry SkyProvider::getSnapshot(bool isPreview, const std::stop_token& stop) const
{
    return isPreview ? sampleEntry() : liveEntry(stop);
}

SkyTimeline SkyProvider::getTimeline(const std::stop_token& stop) const
{
    SkyEntry entry = liveEntry(stop);
    return {.entries = {std::move(entry)}, .reloadAfter = Clock::now() + reloadInterval};
}

SkyEntry SkyProvider::liveEntry(const std::stop_token& stop) const
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

} // namespace skyvane
