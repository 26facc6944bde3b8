#include "paint/render.h"

#include "paint/painter.h"
#include "paint/to_qt.h"

#include <QBuffer>
#include <QPainter>
#include <QSvgGenerator>

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

QSize pixels(Size size, double scale)
{
    const auto pixel
        = [&](double points) { return std::max(1, static_cast<int>(std::lround(points * scale))); };
    return {pixel(size.width), pixel(size.height)};
}

} // namespace

QImage renderImage(const DisplayList& list, const Color& background, double scale, const FontMeasurer& fonts)
{
    QImage image{pixels(list.size, scale), QImage::Format_ARGB32_Premultiplied};
    image.fill(toQt(background));
    QPainter painter{&image};
    painter.scale(scale, scale);
    paint(list, painter, fonts);
    return image;
}

QByteArray renderSvg(
    const DisplayList& list, const Color& background, const SvgLabels& labels, const FontMeasurer& fonts)
{
    constexpr int pixelsPerInch = 96; // Those of the web: at its natural size, a point is a pixel.
    const QRectF box{0, 0, list.size.width, list.size.height};

    QBuffer buffer;
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(pixelsPerInch);
    generator.setSize(pixels(list.size, 1));
    generator.setViewBox(box);
    generator.setTitle(labels.title.toHtmlEscaped());
    generator.setDescription(labels.description.toHtmlEscaped());

    QPainter painter{&generator};
    painter.fillRect(box, toQt(background));
    paint(list, painter, fonts, TextForm::outlines);
    painter.end();
    return buffer.data();
}

} // namespace skyvane
