#include "desk/look/contrast.h"

#include "paint/to_qt.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

double luminance(const QColor& color)
{
    const auto linear = [](float channel) {
        return channel <= 0.04045F ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// `share` of the way from one colour to the other.
QColor mixed(const QColor& from, const QColor& to, float share)
{
    const auto channel = [=](float one, float other) { return one + (other - one) * share; };
    return QColor::fromRgbF(channel(from.redF(), to.redF()), channel(from.greenF(), to.greenF()),
        channel(from.blueF(), to.blueF()));
}

} // namespace

double contrast(const QColor& one, const QColor& other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

double contrastOn(const Color& background, const Color& color)
{
    const QColor under = toQt(background);
    return contrast(mixed(under, toQt(color), static_cast<float>(color.opacity)), under);
}

QColor legible(const Color& color, const QColor& background)
{
    constexpr double enoughForText = 4.5;
    return setApart(toQt(color.withOpacity(1)), background, enoughForText);
}

QColor setApart(const QColor& color, const QColor& background, double enough)
{
    constexpr int steps = 50;
    const QColor end
        = contrast(Qt::black, background) > contrast(Qt::white, background) ? Qt::black : Qt::white;
    for (int step = 0; step < steps; ++step) {
        const QColor candidate = mixed(color, end, static_cast<float>(step) / steps);
        if (contrast(candidate, background) >= enough)
            return candidate;
    }
    return end;
}

QColor outlineOn(const QPalette& palette, double enough)
{
    const QColor window = palette.color(QPalette::Window);
    return setApart(window, window, enough);
}

} // namespace skyvane
