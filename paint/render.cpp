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

/// For the generator, which escapes labels, or does not, by its version: words that are alike either way.
constexpr const char* titleToCome = "title to come";
constexpr const char* descriptionToCome = "description to come";

QByteArray element(const QByteArray& name, const QByteArray& text)
{
    return "<" + name + ">" + text + "</" + name + ">";
}

QByteArray labelled(QByteArray svg, const SvgLabels& labels)
{
    svg.replace(element("title", titleToCome), element("title", labels.title.toHtmlEscaped().toUtf8()));
    svg.replace(
        element("desc", descriptionToCome), element("desc", labels.description.toHtmlEscaped().toUtf8()));
    return svg;
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
    generator.setTitle(QString::fromLatin1(titleToCome));
    generator.setDescription(QString::fromLatin1(descriptionToCome));

    QPainter painter{&generator};
    painter.fillRect(box, toQt(background));
    paint(list, painter, fonts, TextForm::outlines);
    painter.end();
    return labelled(buffer.data(), labels);
}

} // namespace skyvane
