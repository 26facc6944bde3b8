#include "alerts/alert_words.h"

#include "core/radar/radar_geometry.h"
#include "platform/text/compass.h"
#include "platform/text/localized.h"
#include "platform/text/printable.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>
#include <utility>

namespace skyvane::AlertWords {

namespace {

constexpr std::size_t longestName = 40; ///< So that the sentence keeps its end.

std::string shown(std::string name)
{
    return Unicode::oneLine(std::move(name), longestName);
}

std::string beginning(const std::string& text)
{
    constexpr std::size_t enough = 512; // Bytes, for more characters than are shown.
    return text.substr(0, enough);
}

std::optional<std::string> beginning(const std::optional<std::string>& text)
{
    return text ? std::optional{beginning(*text)} : std::nullopt;
}

/// What names it, without what nobody would see of texts of megabytes.
Aircraft named(const Aircraft& whole)
{
    return {
        .hex = beginning(whole.hex),
        .flight = beginning(whole.flight),
        .registration = beginning(whole.registration),
        .typeCode = beginning(whole.typeCode),
        .typeDescription = beginning(whole.typeDescription),
    };
}

/// "BAW117, Boeing 777-300ER,"
std::string subject(const Aircraft& whole)
{
    const Aircraft aircraft = named(whole);
    const std::string name = shown(aircraft.displayName());
    const std::string model = shown(aircraft.typeName().value_or(""));
    return model.empty() || model == name ? name : name + ", " + model + ",";
}

/// " It is 12.3 mi away, in the south-west." Empty when that is not known.
std::string whereabouts(const Aircraft& aircraft, const Observer& observer)
{
    const auto distance = aircraft.distanceText(observer.unit, /*compact=*/false);
    const auto polar = RadarGeometry{.radiusNM = 1, .home = observer.home}.polar(aircraft);
    if (!distance || !polar)
        return {};
    return ' ' + localized("It is %1 away, in the %2.", {*distance, compassDirection(polar->bearingDeg)});
}

Words bounded(std::string title, std::string body)
{
    return {.title = Unicode::atMost(std::move(title)), .body = Unicode::atMost(std::move(body))};
}

std::string distress(const Aircraft& aircraft)
{
    const std::string who = subject(aircraft);
    if (aircraft.squawk == "7500")
        return localized("%1 reports a hijacking (7500).", {who});
    if (aircraft.squawk == "7600")
        return localized("%1 reports that its radio has failed (7600).", {who});
    if (aircraft.squawk == "7700")
        return localized("%1 reports an emergency (7700).", {who});
    return localized("%1 reports an emergency.", {who});
}

} // namespace

Words emergency(const Aircraft& aircraft, const Observer& observer)
{
    return bounded(localized("Emergency"), distress(aircraft) + whereabouts(aircraft, observer));
}

Words military(const Aircraft& aircraft, const Observer& observer)
{
    return bounded(localized("Military aircraft"),
        localized("%1 is in range.", {subject(aircraft)}) + whereabouts(aircraft, observer));
}

Words watched(const Aircraft& aircraft, const Observer& observer)
{
    return bounded(localized("On your watch list"),
        localized("%1 is in range.", {subject(aircraft)}) + whereabouts(aircraft, observer));
}

Words overhead(const Aircraft& aircraft, const SkyPosition& pass, std::chrono::duration<double> wait)
{
    constexpr std::int64_t straightUp = 80; // Degrees; beyond it nobody asks in which direction.
    const std::string who = subject(aircraft);
    const std::int64_t degrees = std::llround(pass.elevationDeg);
    const auto minutes = static_cast<std::uint64_t>(std::max(std::llround(wait.count() / 60), 0LL));
    const std::string to = compassDirection(pass.bearingDeg);
    const std::string title = localized("Look up");
    if (minutes == 0 && degrees >= straightUp)
        return bounded(title, localized("%1 passes right above you now.", {who}));
    if (minutes == 0)
        return bounded(title, localized("%1 passes %2° high in the %3 now.", {who, degrees, to}));
    if (degrees >= straightUp)
        return bounded(title,
            localizedCount("%1 passes right above you in %2 minute.",
                "%1 passes right above you in %2 minutes.", minutes, {who, minutes}));
    return bounded(title,
        localizedCount("%1 passes %2° high in the %3 in %4 minute.",
            "%1 passes %2° high in the %3 in %4 minutes.", minutes, {who, degrees, to, minutes}));
}

} // namespace skyvane::AlertWords
