#include "companion/aircraft/aircraft_words.h"

#include "desk/text.h"
#include "platform/text/localized.h"
#include "platform/text/unicode.h"

#include <QStringList>

#include <optional>

namespace skyvane::AircraftWords {

namespace {

QString orEmpty(const std::optional<std::string>& text)
{
    return text ? toQString(*text) : QString{};
}

QString climb(const Aircraft& aircraft)
{
    if (const auto text = aircraft.verticalText())
        return toQString(*text);
    return aircraft.verticalRate() && !aircraft.isOnGround() ? toQString(localized("Level")) : QString{};
}

QString altitude(const Aircraft& aircraft)
{
    if (aircraft.isOnGround())
        return toQString(localized("On ground"));
    return aircraft.altitudeFeet() ? toQString(aircraft.altitudeText()) : QString{};
}

} // namespace

QString identity(const Aircraft& aircraft)
{
    QStringList words{orEmpty(aircraft.typeName()), orEmpty(aircraft.registration),
        orEmpty(aircraft.operatorDisplayName())};
    words.removeAll(QString{});
    words.removeAll(toQString(aircraft.displayName()));
    words.removeDuplicates();
    return words.join(QStringLiteral(" · "));
}

QString alarm(const Aircraft& aircraft)
{
    if (aircraft.squawk == "7500")
        return toQString(localized("It reports a hijacking (7500)."));
    if (aircraft.squawk == "7600")
        return toQString(localized("It reports that its radio has failed (7600)."));
    if (aircraft.squawk == "7700")
        return toQString(localized("It reports an emergency (7700)."));
    if (aircraft.isEmergency())
        return toQString(localized("It reports an emergency."));
    return aircraft.isMilitary() ? toQString(localized("A military aircraft.")) : QString{};
}

std::vector<Fact> facts(const Aircraft& aircraft, const std::string& unit)
{
    std::vector<Fact> known{
        {toQString(localized("Altitude")), altitude(aircraft)},
        {toQString(localized("Speed")), aircraft.groundSpeed ? toQString(aircraft.speedText()) : QString{}},
        {toQString(localized("Climb")), climb(aircraft)},
        {toQString(localized("Distance")), orEmpty(aircraft.distanceText(unit, /*compact=*/false))},
        {toQString(localized("Squawk")), orEmpty(aircraft.squawk)},
        {toQString(localized("Registration")), orEmpty(aircraft.registration)},
        {toQString(localized("Type")), orEmpty(aircraft.typeCode)},
        {toQString(localized("Address")), toQString(Unicode::uppercased(aircraft.hex))},
    };
    std::erase_if(known, [](const Fact& fact) { return fact.value.isEmpty(); });
    return known;
}

} // namespace skyvane::AircraftWords
