#include "companion/aircraft/aircraft_words.h"

#include "companion/aircraft/squawk_words.h"
#include "desk/text.h"
#include "platform/text/unicode.h"

#include <QStringList>

#include <cmath>
#include <optional>
#include <utility>

namespace skyvane::AircraftWords {

namespace {

QString orEmpty(const std::optional<std::string>& text)
{
    return text ? toQString(*text) : QString{};
}

/// Named after the trend: "Climbing", "Descending", "Climb" for level flight.
Fact climb(const Aircraft& aircraft, Measures measures)
{
    if (QString text = Figures::climb(aircraft, measures); !text.isEmpty())
        return {*aircraft.verticalRate() > 0 ? localizedText("Climbing") : localizedText("Descending"),
            std::move(text)};
    const bool isLevel = aircraft.verticalRate() && !aircraft.isOnGround();
    return {localizedText("Climb"), isLevel ? localizedText("Level") : QString{}};
}

/// How old the position was when it was told.
QString positionAge(const Aircraft& aircraft)
{
    constexpr double longest = 3600;
    const double age = aircraft.seenPos.value_or(-1);
    return age >= 0 && age < longest ? localizedText("%1 s old", {std::llround(age)}) : QString{};
}

QString altitude(const Aircraft& aircraft, Measures measures)
{
    if (aircraft.isOnGround())
        return localizedText("On ground");
    return Figures::altitude(aircraft, measures);
}

} // namespace

QString identity(const Aircraft& aircraft, const std::optional<std::string>& airline)
{
    const auto operatorName = aircraft.operatorDisplayName();
    QStringList words{orEmpty(aircraft.typeName()), orEmpty(aircraft.registration),
        orEmpty(operatorName ? operatorName : airline)};
    words.removeAll(QString{});
    words.removeAll(toQString(aircraft.displayName()));
    words.removeDuplicates();
    return words.join(QStringLiteral(" · "));
}

QString alarm(const Aircraft& aircraft, bool isThere)
{
    if (aircraft.squawk == "7500")
        return isThere ? localizedText("It reports a hijacking (7500).")
                       : localizedText("It reported a hijacking (7500).");
    if (aircraft.squawk == "7600")
        return isThere ? localizedText("It reports that its radio has failed (7600).")
                       : localizedText("It reported that its radio had failed (7600).");
    if (aircraft.squawk == "7700")
        return isThere ? localizedText("It reports an emergency (7700).")
                       : localizedText("It reported an emergency (7700).");
    if (aircraft.isEmergency())
        return isThere ? localizedText("It reports an emergency.")
                       : localizedText("It reported an emergency.");
    return aircraft.isMilitary() ? localizedText("A military aircraft.") : QString{};
}

std::vector<Fact> facts(const Aircraft& aircraft, const Units& units)
{
    std::vector<Fact> known{
        {localizedText("Altitude"), altitude(aircraft, units.measures)},
        {localizedText("Speed"), Figures::speed(aircraft, units.measures)},
        climb(aircraft, units.measures),
        {localizedText("Distance"), orEmpty(aircraft.distanceText(units.distance, /*compact=*/false))},
        {localizedText("Position"), positionAge(aircraft)},
        {localizedText("Squawk"), aircraft.squawk ? squawkText(*aircraft.squawk) : QString{}},
        {localizedText("Registration"), orEmpty(aircraft.registration)},
        {localizedText("Type"), orEmpty(aircraft.typeCode)},
        {localizedText("Address"), toQString(Unicode::uppercased(aircraft.hex))},
    };
    std::erase_if(known, [](const Fact& fact) { return fact.value.isEmpty(); });
    return known;
}

} // namespace skyvane::AircraftWords
