#include "companion/look/measures.h"

#include "desk/text.h"
#include "platform/text/locale.h"

#include <QLocale>

#include <cmath>

namespace skyvane::Figures {

namespace {

constexpr double metresPerFoot = 0.3048;

QString figure(double value, const char* unit)
{
    constexpr double beyondAllSky = 1e12;
    if (!(std::abs(value) < beyondAllSky))
        return {};
    return toQString(groupedInteger(std::llround(value))) + QLatin1Char{' '} + QLatin1String{unit};
}

} // namespace

QString altitude(const Aircraft& aircraft, Measures measures)
{
    const auto feet = aircraft.altitudeFeet();
    if (aircraft.isOnGround())
        return toQString(aircraft.altitudeText());
    if (!feet)
        return {};
    return measures == Measures::metric ? figure(static_cast<double>(*feet) * metresPerFoot, "m")
                                        : toQString(aircraft.altitudeText());
}

QString speed(const Aircraft& aircraft, Measures measures)
{
    if (!aircraft.groundSpeed)
        return {};
    switch (measures) {
    case Measures::metric:
        return figure(*aircraft.groundSpeed * DistanceUnit::named("km").perNauticalMile, "km/h");
    case Measures::imperial:
        return figure(*aircraft.groundSpeed * DistanceUnit::named("mi").perNauticalMile, "mph");
    case Measures::aviation:
        break;
    }
    return toQString(aircraft.speedText());
}

QString climb(const Aircraft& aircraft, Measures measures)
{
    const auto text = aircraft.verticalText();
    if (!text || measures != Measures::metric)
        return toQString(text.value_or(""));
    const double metresPerSecond = static_cast<double>(*aircraft.verticalRate()) * metresPerFoot / 60;
    const QLocale locale{toQString(Locale::current().numbers)};
    return (metresPerSecond < 0 ? QStringLiteral("↓ ") : QStringLiteral("↑ "))
        + locale.toString(std::abs(metresPerSecond), 'f', 1) + QStringLiteral(" m/s");
}

} // namespace skyvane::Figures
