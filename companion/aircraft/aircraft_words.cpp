#include "companion/aircraft/aircraft_words.h"

#include "desk/text.h"
#include "platform/text/unicode.h"

#include <QStringList>

#include <optional>

namespace skyvane::AircraftWords {

namespace {

QString orEmpty(const std::optional<std::string>& text)
{
    return text ? toQString(*text) : QString{};
}

QString climb(const Aircraft& aircraft, Measures measures)
{
    if (QString text = Figures::climb(aircraft, measures); !text.isEmpty())
        return text;
    return aircraft.verticalRate() && !aircraft.isOnGround() ? localizedText("Level") : QString{};
}

QString altitude(const Aircraft& aircraft, Measures measures)
{
    if (aircraft.isOnGround())
        return localizedText("On ground");
    return Figures::altitude(aircraft, measures);
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
        return localizedText("It reports a hijacking (7500).");
    if (aircraft.squawk == "7600")
        return localizedText("It reports that its radio has failed (7600).");
    if (aircraft.squawk == "7700")
        return localizedText("It reports an emergency (7700).");
    if (aircraft.isEmergency())
        return localizedText("It reports an emergency.");
    return aircraft.isMilitary() ? localizedText("A military aircraft.") : QString{};
}

std::vector<Fact> facts(const Aircraft& aircraft, const Units& units)
{
    std::vector<Fact> known{
        {localizedText("Altitude"), altitude(aircraft, units.measures)},
        {localizedText("Speed"), Figures::speed(aircraft, units.measures)},
        {localizedText("Climb"), climb(aircraft, units.measures)},
        {localizedText("Distance"), orEmpty(aircraft.distanceText(units.distance, /*compact=*/false))},
        {localizedText("Squawk"), orEmpty(aircraft.squawk)},
        {localizedText("Registration"), orEmpty(aircraft.registration)},
        {localizedText("Type"), orEmpty(aircraft.typeCode)},
        {localizedText("Address"), toQString(Unicode::uppercased(aircraft.hex))},
    };
    std::erase_if(known, [](const Fact& fact) { return fact.value.isEmpty(); });
    return known;
}

} // namespace skyvane::AircraftWords
