#include "companion/sky/column_width.h"

#include "companion/look/type_scale.h"
#include "companion/sky/aircraft_delegate.h"
#include "companion/sky/star_delegate.h"
#include "desk/text.h"

#include <QFont>
#include <QFontMetrics>
#include <QStringList>

#include <algorithm>

namespace skyvane {

namespace {

int widest(const QStringList& texts, const QFont& font)
{
    const QFontMetrics metrics{font};
    int width = 0;
    for (const QString& text : texts)
        width = std::max(width, metrics.horizontalAdvance(text));
    return width;
}

int contentWidth(SkyColumn column, const QFont& font)
{
    const QString head = SkyCells::title(column);
    switch (column) {
    case SkyColumn::name:
        return AircraftDelegate::width(widest({QStringLiteral("WWWWWWWW")}, TypeScale::strong(font)),
            widest({localizedText("Emergency"), localizedText("Military")}, TypeScale::small(font)));
    case SkyColumn::model:
        return widest({head, QStringLiteral("Boeing 737-800")}, font);
    case SkyColumn::operatorName:
        return widest({head, QStringLiteral("United Airlines")}, font);
    case SkyColumn::distance:
        return widest({head, QStringLiteral("000.0 km")}, font);
    case SkyColumn::altitude:
        return widest({head, localizedText("On ground"), QStringLiteral("00,000 ft")}, font);
    case SkyColumn::climb:
        return widest({head, QStringLiteral("↑ 00,000 ft/min")}, font);
    case SkyColumn::star:
        return StarDelegate::size;
    }
    return 0;
}

} // namespace

int usualWidth(SkyColumn column, const QFont& font)
{
    return contentWidth(column, font) + 2 * CellDelegate::margin;
}

} // namespace skyvane
