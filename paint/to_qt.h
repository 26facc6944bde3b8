#pragma once

#include "platform/text/text_direction.h"
#include "ui/layout/geometry.h"
#include "ui/tree/color.h"

#include <QColor>
#include <QPointF>
#include <QString>

#include <algorithm>
#include <string_view>

namespace skyvane {

inline QString toQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline QPointF toQt(Point point)
{
    return {point.x, point.y};
}

inline Qt::LayoutDirection toQt(TextDirection direction)
{
    return direction == TextDirection::rightToLeft ? Qt::RightToLeft : Qt::LeftToRight;
}

inline TextDirection fromQt(Qt::LayoutDirection direction)
{
    return direction == Qt::RightToLeft ? TextDirection::rightToLeft : TextDirection::leftToRight;
}

inline QColor toQt(const Color& color)
{
    const auto channel = [](double value) { return static_cast<float>(std::clamp(value, 0.0, 1.0)); };
    return QColor::fromRgbF(
        channel(color.red), channel(color.green), channel(color.blue), channel(color.opacity));
}

} // namespace skyvane
