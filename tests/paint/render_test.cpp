#include "paint/render.h"

#include "paint/painter.h"
#include "paint/widget_card.h"
#include "tests/paint/picture.h"
#include "ui/layout/layout.h"
#include "ui/tree/build.h"

#include <QPainter>
#include <QSvgRenderer>

#include <gmock/gmock.h>

namespace skyvane {

namespace {

View sample()
{
    return overlay(
        canvas(1,
            {
                CanvasCircle{
                    .center = {0.5, 0.5},
                    .diameter = FractionOfWidth{0.9},
                    .paint = Stroke{.color = test::white, .width = 1.5},
                },
                CanvasCircle{
                    .center = {0.5, 0.5},
                    .diameter = FractionOfWidth{0.5},
                    .paint = Stroke{.color = test::white.withOpacity(0.5), .width = 1},
                },
                CanvasLine{.from = {0, 0.5}, .to = {1, 0.5}, .stroke = {.color = test::white, .width = 1}},
                CanvasSymbol{
                    .center = {0.7, 0.3}, .name = "airplane", .font = {.size = 14}, .color = test::white},
            }),
        {layer(Alignment::bottom, text("12,500 ft").font({.size = 12}).foreground(test::white))});
}

DisplayList sampleList(const FontMeasurer& fonts)
{
    return layout(sample(), {120, 100}, fonts);
}

} // namespace

TEST(Render, thePictureIsItsSizeTimesTheScaleRounded)
{
    const FontMeasurer fonts;
    const DisplayList list{.size = {170, 170}};
    EXPECT_EQ(renderImage(list, test::black, 1, fonts).size(), QSize(170, 170));
    EXPECT_EQ(renderImage(list, test::black, 2, fonts).size(), QSize(340, 340));
    EXPECT_EQ(renderImage(list, test::black, 1.25, fonts).size(), QSize(213, 213));
    EXPECT_EQ(renderImage(list, test::black, 0.001, fonts).size(), QSize(1, 1));
    EXPECT_EQ(renderImage(list, test::black, 2, fonts).devicePixelRatio(), 1);
}

TEST(Render, twiceTheScaleIsTheSamePicture)
{
    const FontMeasurer fonts;
    const DisplayList list = sampleList(fonts);
    const QImage once = renderImage(list, test::black, 1, fonts);
    const QImage twice = renderImage(list, test::black, 2, fonts);
    const QImage halved = twice.scaled(once.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    EXPECT_LT(test::difference(once, halved), 3);
    EXPECT_GT(test::difference(once, renderImage({.size = list.size}, test::black, 1, fonts)), 5);
}

TEST(Render, aBackgroundMayBeTranslucent)
{
    const QImage image = renderImage({.size = {4, 4}}, {1, 1, 1, 0.5}, 1, FontMeasurer{});
    EXPECT_NEAR(image.pixelColor(1, 1).alpha(), 128, 1);
}

TEST(Render, anSvgShowsWhatTheImageShows)
{
    const FontMeasurer fonts;
    const DisplayList list = sampleList(fonts);
    QSvgRenderer renderer{renderSvg(list, test::black, {.title = "Sample"}, fonts)};
    ASSERT_TRUE(renderer.isValid());
    EXPECT_EQ(renderer.viewBoxF(), QRectF(0, 0, 120, 100));

    QImage image{240, 200, QImage::Format_ARGB32_Premultiplied};
    image.fill(Qt::transparent);
    QPainter painter{&image};
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    painter.end();
    EXPECT_LT(test::difference(image, renderImage(list, test::black, 2, fonts)), 3);
}

TEST(Render, anSvgIsAsManyWholePixelsAsItHasPoints)
{
    const FontMeasurer fonts;
    for (const Size size : {Size{170, 170}, Size{364, 170}, Size{364, 382}}) {
        const QByteArray svg = renderSvg({.size = size}, test::black, {.title = "Sample"}, fonts);
        const QByteArray width = QByteArray::number(size.width);
        const QByteArray height = QByteArray::number(size.height);
        EXPECT_TRUE(svg.contains("<svg width=\"" + width + "\" height=\"" + height + "\"\n viewBox=\"0 0 "
            + width + " " + height + "\""))
            << svg.left(300).toStdString();
        EXPECT_EQ(QSvgRenderer{svg}.defaultSize(), QSizeF(size.width, size.height).toSize());
    }
}

TEST(Render, roundCornersAreThoseOfTheCardOnTheDesktop)
{
    const FontMeasurer fonts;
    const DisplayList list = sampleList(fonts);
    for (const double scale : {1.0, 2.0}) {
        QImage card{QSizeF(120 * scale, 100 * scale).toSize(), QImage::Format_ARGB32_Premultiplied};
        card.fill(Qt::transparent);
        QPainter painter{&card};
        painter.scale(scale, scale);
        WidgetCard::paintBackground(list.size, test::black, painter);
        paint(list, painter, fonts);
        painter.end();
        EXPECT_EQ(renderImage(list, test::black, scale, fonts, Corners::round), card);
    }
    EXPECT_EQ(renderImage(list, test::black, 1, fonts, Corners::square).pixelColor(0, 0), QColor(0, 0, 0));
}

TEST(Render, anSvgsCornersAreThoseOfTheImage)
{
    const FontMeasurer fonts;
    const DisplayList list = sampleList(fonts);
    for (const Corners corners : {Corners::round, Corners::square}) {
        QImage image{120, 100, QImage::Format_ARGB32_Premultiplied};
        image.fill(Qt::transparent);
        QPainter painter{&image};
        QSvgRenderer{renderSvg(list, test::white, {.title = "Sample"}, fonts, corners)}.render(&painter);
        painter.end();
        const QImage pixels = renderImage(list, test::white, 1, fonts, corners);
        for (const QPoint place : {QPoint{0, 0}, QPoint{119, 99}, QPoint{4, 4}, QPoint{30, 0}})
            EXPECT_NEAR(image.pixelColor(place).alpha(), pixels.pixelColor(place).alpha(), 3) << place.x();
    }
}

TEST(Render, anSvgIsDrawnInLinesNotInPixels)
{
    const FontMeasurer fonts;
    EXPECT_FALSE(renderSvg(sampleList(fonts), test::black, {.title = "Sample"}, fonts).contains("<image"));
}

TEST(Render, anSvgNamesItselfAndHoldsNoText)
{
    const FontMeasurer fonts;
    const QByteArray svg = renderSvg(
        sampleList(fonts), test::black, {.title = "Sky Radar", .description = "Aircraft & more"}, fonts);
    EXPECT_TRUE(svg.contains("<title>Sky Radar</title>"));
    EXPECT_EQ(svg.count("<title"), 1);
    EXPECT_EQ(svg.count("<desc"), 1);
    EXPECT_TRUE(svg.contains("<desc>Aircraft &amp; more</desc>")) << svg.left(600).toStdString();
    EXPECT_FALSE(svg.contains("<text"));
}

} // namespace skyvane
