#include "companion/settings/settings_draft.h"

#include "core/model/distance_unit.h"
#include "platform/text/printable.h"

namespace skyvane {

SettingsDraft SettingsDraft::of(const SharedState::Config& config)
{
    return {
        .place = Coordinate{.latitude = config.home.latitude, .longitude = config.home.longitude},
        .label = Unicode::oneLine(config.home.label), // Other programs write it, too.
        .radiusNM = config.radiusNM,
        .unit = config.distanceUnit,
        .accentHex = config.widgetColorHex,
    };
}

std::optional<SharedState::Config> SettingsDraft::toConfig() const
{
    if (!place)
        return std::nullopt;
    return SharedState::Config{
        .home = {.latitude = place->latitude, .longitude = place->longitude, .label = label},
        .radiusNM = radiusNM,
        .distanceUnit = unit,
        .widgetColorHex = accentHex,
    };
}

SkyEntry SettingsDraft::asChosen(SkyEntry entry) const
{
    entry.radiusNM = SearchRadius::bounded(radiusNM);
    entry.unit = unit.value_or(DistanceUnit::standard);
    entry.accentHex = accentHex;
    return entry;
}

SettingsDraft merged(const SettingsDraft& draft, const SettingsDraft& before, const SettingsDraft& now)
{
    const auto choose = [&](auto SettingsDraft::*field) {
        return draft.*field == before.*field ? now.*field : draft.*field;
    };
    return {
        .place = choose(&SettingsDraft::place),
        .label = choose(&SettingsDraft::label),
        .radiusNM = choose(&SettingsDraft::radiusNM),
        .unit = choose(&SettingsDraft::unit),
        .accentHex = choose(&SettingsDraft::accentHex),
    };
}

} // namespace skyvane
