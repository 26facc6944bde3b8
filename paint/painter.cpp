#include "paint/painter.h"

#include "paint/device_pixels.h"
#include "paint/line_painter.h"
#include "paint/pictograms.h"
#include "paint/ring_painter.h"
#include "paint/to_qt.h"

#include <QPainter>
#include <QPainterPath>
#include <QRawFont>

#include <cmath>

namespace skyvane {

namespace {

/// Whether a place or length is near enough to a widget to be worth painting, and safe to compute with.
bool isNear(double points)
{
    constexpr double farAway = 10'000;
    return std::abs(points) < farAway;
}

bool isNear(Point point)
{
    return isNear(point.x) && isNear(point.y);
}

bool isVisible(const Stroke& stroke)
{
    return stroke.width > 0 && isNear(stroke.width);
}

struct ItemPainter {
    QPainter& painter;
    const FontMeasurer& fonts;
    TextForm form;

    void operator()(const TextLine& line) const
    {
        if (!isNear(line.origin))
            return;
        painter.setPen(toQt(line.color));
        constexpr double fine = 1.5; // From there on, pixels are too small to bend to.
        const auto scale = form == TextForm::glyphs ? DevicePixels::scale(painter) : std::nullopt;
        if (scale && *scale < fine)
            paintOnPixels(line, *scale);
        else
            paintAnywhere(line);
    }

    void operator()(const Pictogram& pictogram) const
    {
        const QPainterPath* shape = pictogramOutline(pictogram.name);
        if (!shape || !isNear(pictogram.center) || !isNear(pictogram.side)
            || !std::isfinite(pictogram.rotation))
            return;
        QTransform place;
        place.translate(pictogram.center.x, pictogram.center.y);
        place.rotate(std::fmod(pictogram.rotation, 360));
        place.scale(pictogram.side, pictogram.side);
        painter.fillPath(place.map(*shape), toQt(pictogram.color));
    }

    void operator()(const Ellipse& ellipse) const
    {
        if (!isNear(ellipse.center) || !isNear(ellipse.diameter) || ellipse.diameter <= 0)
            return;
        const double radius = ellipse.diameter / 2;
        if (const auto* fill = std::get_if<Color>(&ellipse.paint)) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(toQt(*fill));
            painter.drawEllipse(toQt(ellipse.center), radius, radius);
        } else if (const Stroke& stroke = std::get<Stroke>(ellipse.paint); isVisible(stroke)) {
            paintRing(painter, stroke, toQt(ellipse.center), radius);
        }
    }

    void operator()(const Segment& segment) const
    {
        if (!isNear(segment.from) || !isNear(segment.to) || !isVisible(segment.stroke))
            return;
        paintLine(painter, segment.stroke, toQt(segment.from), toQt(segment.to));
    }

    void paintAnywhere(const TextLine& line) const
    {
        for (const QGlyphRun& run : fonts.glyphs(line.string, line.face, line.tracking)) {
            if (form == TextForm::glyphs)
                painter.drawGlyphRun(toQt(line.origin), run);
            else
                painter.fillPath(outline(run).translated(toQt(line.origin)), toQt(line.color));
        }
    }

    /// With hinted glyphs, which are made for the size and place at which they stand.
    void paintOnPixels(const TextLine& line, double scale) const
    {
        FontFace face = line.face;
        face.size *= scale;
        const QPointF origin = painter.deviceTransform().map(toQt(line.origin));
        const QTransform before = painter.transform();
        painter.setTransform(DevicePixels::transform(painter));
        for (const QGlyphRun& run : fonts.glyphs(line.string, face, line.tracking * scale, Hinting::usual))
            painter.drawGlyphRun({origin.x(), std::round(origin.y())}, run);
        painter.setTransform(before);
    }

    static QPainterPath outline(const QGlyphRun& run)
    {
        const QRawFont font = run.rawFont();
        const QList<quint32> indexes = run.glyphIndexes();
        const QList<QPointF> positions = run.positions();
        QPainterPath path;
        path.setFillRule(Qt::WindingFill);
        for (qsizetype index = 0; index < indexes.size(); ++index)
            path.addPath(font.pathForGlyph(indexes[index]).translated(positions[index]));
        return path;
    }
};

} // namespace

void paint(const DisplayList& list, QPainter& painter, const FontMeasurer& fonts, TextForm form)
{
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    for (const DisplayItem& item : list.items)
        std::visit(ItemPainter{.painter = painter, .fonts = fonts, .form = form}, item);
    painter.restore();
}

} // namespace skyvane
