#include "companion/look/type_scale.h"

#include <QFontInfo>
#include <QWidget>

namespace skyvane::TypeScale {

namespace {

QFont scaled(const QFont& own, double factor, QFont::Weight weight)
{
    QFont font = own;
    font.setPointSizeF(QFontInfo{font}.pointSizeF() * factor);
    font.setWeight(weight);
    return font;
}

} // namespace

QFont display(const QFont& own)
{
    return scaled(own, 2.2, QFont::Bold);
}

QFont title(const QFont& own)
{
    return scaled(own, 1.4, QFont::DemiBold);
}

QFont strong(const QFont& own)
{
    return scaled(own, 1, QFont::DemiBold);
}

QFont small(const QFont& own)
{
    return scaled(own, 0.9, QFont::Normal);
}

void makeQuiet(QWidget& widget)
{
    widget.setForegroundRole(QPalette::PlaceholderText);
}

} // namespace skyvane::TypeScale
