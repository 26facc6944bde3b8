#include "paint/pictograms.h"

#include <QTransform>

namespace skyvane {

namespace {

/// Outlines are drawn in a square of 1,000 units about the origin: joining paths loses the curves of tiny
/// ones. Their curves become polygons here, once, and not each time they are painted: as fine as they need to
/// be for some hundred pixels.
QPainterPath inUnitSquare(const QPainterPath& path)
{
    constexpr double units = 1000;
    constexpr double pixels = 250;
    QPainterPath outline;
    outline.setFillRule(path.fillRule());
    for (const QPolygonF& polygon :
        path.toSubpathPolygons(QTransform::fromScale(pixels / units, pixels / units)))
        outline.addPolygon(polygon);
    return QTransform::fromScale(1 / pixels, 1 / pixels).map(outline);
}

/// From above: slim fuselage, swept wings, tailplane.
QPainterPath airplane()
{
    QPainterPath half{{495, 0}};
    half.cubicTo({495, -36}, {420, -84}, {300, -84}); // Nose.
    half.lineTo(160, -84);
    half.lineTo(-95, -455); // Leading edge.
    half.cubicTo({-112, -482}, {-132, -495}, {-158, -495}); // Wing tip.
    half.lineTo(-218, -495);
    half.lineTo(-95, -82); // Trailing edge.
    half.lineTo(-300, -66);
    half.lineTo(-398, -190); // Tailplane.
    half.cubicTo({-408, -204}, {-420, -210}, {-436, -210});
    half.lineTo(-478, -210);
    half.lineTo(-425, -30);
    half.cubicTo({-448, -22}, {-462, -12}, {-465, 0}); // Tail.

    QPainterPath whole = half;
    whole.connectPath(QTransform::fromScale(1, -1).map(half).toReversed());
    whole.closeSubpath();
    return inUnitSquare(whole);
}

/// From the side, level, the nose to the right.
QPainterPath profile()
{
    QPainterPath body{{505, 15}};
    body.cubicTo({505, 60}, {430, 85}, {310, 85});
    body.lineTo(-250, 85);
    body.cubicTo({-370, 85}, {-445, 45}, {-470, -35}); // The tail rises.
    body.lineTo(-515, -190);
    body.cubicTo({-520, -210}, {-512, -220}, {-495, -220}); // Fin.
    body.lineTo(-450, -220);
    body.cubicTo({-430, -220}, {-418, -212}, {-405, -195});
    body.lineTo(-300, -65);
    body.lineTo(330, -65);
    body.cubicTo({425, -65}, {505, -35}, {505, 15});
    body.closeSubpath();

    QPainterPath nearWing{{175, 20}};
    nearWing.lineTo(-150, 262);
    nearWing.cubicTo({-165, 274}, {-180, 280}, {-200, 280});
    nearWing.lineTo(-270, 280);
    nearWing.lineTo(-80, 20);
    nearWing.closeSubpath();

    QPainterPath farWing{{150, -50}};
    farWing.lineTo(-65, -215);
    farWing.cubicTo({-80, -226}, {-92, -230}, {-110, -230});
    farWing.lineTo(-165, -230);
    farWing.lineTo(-75, -50);
    farWing.closeSubpath();
    return body.united(nearWing).united(farWing);
}

/// Climbing away from the runway under it.
QPainterPath departure()
{
    QTransform climb;
    climb.translate(14, -112);
    climb.rotate(-24);
    climb.scale(0.9, 0.9);
    QPainterPath path = climb.map(profile());
    path.addRoundedRect(QRectF{-450, 360, 900, 95}, 40, 40);
    return inUnitSquare(path);
}

QPainterPath house()
{
    QPainterPath roof{{0, -460}};
    roof.lineTo(500, -20);
    roof.lineTo(435, 55);
    roof.lineTo(0, -325);
    roof.lineTo(-435, 55);
    roof.lineTo(-500, -20);
    roof.closeSubpath();

    QPainterPath chimney;
    chimney.addRect(QRectF{225, -425, 115, 240});

    QPainterPath walls{{0, -235}};
    walls.lineTo(345, 65);
    walls.lineTo(345, 440);
    walls.lineTo(-345, 440);
    walls.lineTo(-345, 65);
    walls.closeSubpath();

    QPainterPath door;
    door.addRect(QRectF{-95, 135, 190, 305});
    return inUnitSquare(roof.united(chimney).united(walls.subtracted(door)));
}

} // namespace

const QPainterPath* pictogramOutline(std::string_view name)
{
    if (name == "airplane") {
        static const QPainterPath path = airplane();
        return &path;
    }
    if (name == "airplane.departure") {
        static const QPainterPath path = departure();
        return &path;
    }
    if (name == "house") {
        static const QPainterPath path = house();
        return &path;
    }
    return nullptr;
}

} // namespace skyvane
