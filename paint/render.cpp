#include "paint/render.h"

#include "paint/painter.h"
#include "paint/to_qt.h"
#include "paint/widget_card.h"

#include <QBuffer>
#include <QPainter>
#include <QPainterPath>
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

/// The generator gives the natural size in millimetres, which are no whole number of pixels.
QByteArray sizedInPixels(QByteArray svg, QSize size)
{
    const qsizetype start = svg.indexOf(" width=");
    const qsizetype end = svg.indexOf("viewBox=", start);
    const QByteArray words = " width=\"" + QByteArray::number(size.width()) + "\" height=\""
        + QByteArray::number(size.height()) + "\"\n ";
    return start < 0 || end < 0 ? svg : svg.replace(start, end - start, words);
}

void paintBackground(QPainter& painter, const QRectF& box, const Color& color, Corners corners)
{
    if (corners == Corners::square) {
        painter.fillRect(box, toQt(color));
        return;
    }
    QPainterPath shape;
    shape.addRoundedRect(box, WidgetCard::cornerRadius, WidgetCard::cornerRadius);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(shape, toQt(color));
}

} // namespace

QImage renderImage(const DisplayList& list, const Color& background, double scale, const FontMeasurer& fonts,
    Corners corners)
{
    QImage image{pixels(list.size, scale), QImage::Format_ARGB32_Premultiplied};
    image.fill(Qt::transparent);
    QPainter painter{&image};
    painter.scale(scale, scale);
    paintBackground(painter, {{}, QSizeF{image.size()} / scale}, background, corners);
    paint(list, painter, fonts);
    return image;
}

QByteArray renderSvg(const DisplayList& list, const Color& background, const SvgLabels& labels,
    const FontMeasurer& fonts, Corners corners)
{
    const QSize size = pixels(list.size, 1);
    const QRectF box{0, 0, list.size.width, list.size.height};

    QBuffer buffer;
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(size);
    generator.setViewBox(box);
    generator.setTitle(QString::fromLatin1(titleToCome));
    generator.setDescription(QString::fromLatin1(descriptionToCome));

    QPainter painter{&generator};
    paintBackground(painter, box, background, corners);
    paint(list, painter, fonts, TextForm::outlines);
    painter.end();
    return labelled(sizedInPixels(buffer.data(), size), labels);
}

} // namespace skyvane
