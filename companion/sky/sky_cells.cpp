#include "companion/sky/sky_cells.h"

#include "desk/text.h"

#include <QStringList>

#include <optional>

namespace skyvane::SkyCells {

namespace {

QString orEmpty(const std::optional<std::string>& text)
{
    return text ? toQString(*text) : QString{};
}

template <class Number>
QVariant orNothing(const std::optional<Number>& number)
{
    return number ? QVariant{static_cast<double>(*number)} : QVariant{};
}

QString model(const Aircraft& aircraft)
{
    if (const auto name = aircraft.typeName())
        return toQString(*name);
    return orEmpty(aircraft.typeCode);
}

QVariant textKey(const QString& text)
{
    return text.isEmpty() ? QVariant{} : QVariant{text.toCaseFolded()};
}

/// On the ground counts as lower than everything that flies.
QVariant altitudeKey(const Aircraft& aircraft)
{
    constexpr double ground = -100'000;
    return aircraft.isOnGround() ? QVariant{ground} : orNothing(aircraft.altitudeFeet());
}

} // namespace

QString title(SkyColumn column)
{
    switch (column) {
    case SkyColumn::name:
        return localizedText("Aircraft");
    case SkyColumn::model:
        return localizedText("Model");
    case SkyColumn::operatorName:
        return localizedText("Operator");
    case SkyColumn::distance:
        return localizedText("Distance");
    case SkyColumn::altitude:
        return localizedText("Altitude");
    case SkyColumn::climb:
        return localizedText("Climb");
    case SkyColumn::star:
        return {};
    }
    return {};
}

QString text(const Aircraft& aircraft, SkyColumn column, const Units& units)
{
    switch (column) {
    case SkyColumn::name:
        return toQString(aircraft.displayName());
    case SkyColumn::model:
        return model(aircraft);
    case SkyColumn::operatorName:
        return orEmpty(aircraft.operatorDisplayName());
    case SkyColumn::distance:
        return orEmpty(aircraft.distanceText(units.distance, /*compact=*/false));
    case SkyColumn::altitude:
        if (aircraft.isOnGround())
            return localizedText("On ground");
        return aircraft.altitudeFeet() ? Figures::altitude(aircraft, units.measures)
                                       : toQString(aircraft.altitudeText());
    case SkyColumn::climb:
        return Figures::climb(aircraft, units.measures);
    case SkyColumn::star:
        return {};
    }
    return {};
}

QVariant sortKey(const Aircraft& aircraft, SkyColumn column)
{
    switch (column) {
    case SkyColumn::name:
    case SkyColumn::model:
    case SkyColumn::operatorName:
        return textKey(text(aircraft, column, {}));
    case SkyColumn::distance:
        return orNothing(aircraft.distanceNM);
    case SkyColumn::altitude:
        return altitudeKey(aircraft);
    case SkyColumn::climb:
        return orNothing(aircraft.verticalRate());
    case SkyColumn::star:
        return {};
    }
    return {};
}

bool isSetApart(const Aircraft& aircraft)
{
    return aircraft.isEmergency() || aircraft.isMilitary();
}

QString badge(const Aircraft& aircraft)
{
    if (aircraft.isEmergency())
        return localizedText("Emergency");
    return aircraft.isMilitary() ? localizedText("Military") : QString{};
}

QString spokenName(const Aircraft& aircraft)
{
    const QString name = toQString(aircraft.displayName());
    const QString word = badge(aircraft);
    return word.isEmpty() ? name : name + QStringLiteral(", ") + word;
}

QString summary(const Aircraft& aircraft)
{
    QStringList words{text(aircraft, SkyColumn::name, {}), badge(aircraft), orEmpty(aircraft.registration),
        text(aircraft, SkyColumn::model, {}), text(aircraft, SkyColumn::operatorName, {})};
    words.removeAll(QString{});
    words.removeDuplicates();
    return words.join(QStringLiteral(" · "));
}

QString spoken(const Aircraft& aircraft, const Units& units)
{
    const bool hasAltitude = aircraft.isOnGround() || aircraft.altitudeFeet();
    QStringList words{text(aircraft, SkyColumn::name, {}), badge(aircraft),
        text(aircraft, SkyColumn::model, {}), text(aircraft, SkyColumn::operatorName, {}),
        text(aircraft, SkyColumn::distance, units),
        hasAltitude ? text(aircraft, SkyColumn::altitude, units) : QString{}};
    words.removeAll(QString{});
    words.removeDuplicates();
    return words.join(QStringLiteral(", "));
}

QString searched(const Aircraft& aircraft)
{
    return QStringList{
        text(aircraft, SkyColumn::name, {}),
        text(aircraft, SkyColumn::model, {}),
        text(aircraft, SkyColumn::operatorName, {}),
        orEmpty(aircraft.registration),
        orEmpty(aircraft.typeCode),
        orEmpty(aircraft.squawk),
        badge(aircraft),
        toQString(aircraft.hex),
    }
        .join(QLatin1Char{'\n'});
}

} // namespace skyvane::SkyCells
