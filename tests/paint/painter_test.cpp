#include "paint/painter.h"

#include "tests/paint/canvas.h"
#include "tests/paint/picture.h"
#include "ui/layout/layout.h"
#include "ui/tree/build.h"

#include <QPainter>

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace skyvane {

namespace {

using test::brightness;
using test::ink;
using test::picture;

constexpr Stroke thick{.color = test::white, .width = 4};

TextLine letters(double size)
{
    return {
        .origin = {4, 20},
        .width = 0,
        .string = "EFHE 528",
        .face = {.size = size, .design = FontDesign::monospaced},
        .tracking = 0,
        .color = test::white,
    };
}

/// `pixels` large on pixels of that scale.
QImage lettersPainted(double scale, double pixels)
{
    const test::Canvas canvas{.background = Qt::black, .transform = QTransform::fromScale(scale, scale)};
    return test::painted(canvas, [&](QPainter& painter) {
        paint({.size = {100, 40}, .items = {letters(pixels / scale)}}, painter, FontMeasurer{});
    });
}

QImage lettersUnhinted(double scale, double pixels)
{
    const test::Canvas canvas{.background = Qt::black, .transform = QTransform::fromScale(scale, scale)};
    return test::painted(canvas, [&](QPainter& painter) {
        const TextLine line = letters(pixels / scale);
        painter.setPen(Qt::white);
        for (const QGlyphRun& run : FontMeasurer{}.glyphs(line.string, line.face, line.tracking))
            painter.drawGlyphRun({line.origin.x, line.origin.y}, run);
    });
}

/// How bright ink is, all in all.
double sharpness(const QImage& image)
{
    double ink = 0;
    double brightInk = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ink += brightness(image, x, y);
            brightInk += brightness(image, x, y) * brightness(image, x, y);
        }
    }
    return brightInk / ink;
}

} // namespace

TEST(Painter, nothingIsDrawnForAnEmptyList)
{
    const QImage image = renderImage({.size = {20, 10}}, {0, 0.5, 1}, 1, FontMeasurer{});
    for (const Point place : {Point{0, 0}, Point{19, 9}, Point{10, 5}})
        EXPECT_EQ(
            image.pixelColor(static_cast<int>(place.x), static_cast<int>(place.y)), QColor(0, 128, 255));
    EXPECT_EQ(ink(renderImage({.size = {20, 10}}, test::black, 1, FontMeasurer{})), QRect());
}

TEST(Painter, aDiscIsFilledWithItsColour)
{
    const QImage image
        = picture({40, 40}, {Ellipse{.center = {20, 20}, .diameter = 20, .paint = Color{1, 0.5, 0}}});
    EXPECT_EQ(image.pixelColor(20, 20), QColor(255, 128, 0));
    EXPECT_EQ(image.pixelColor(5, 5), QColor(0, 0, 0));
    EXPECT_EQ(ink(image), QRect(10, 10, 20, 20));
}

TEST(Painter, opacityBlendsWithTheBackground)
{
    const Ellipse disc{.center = {20, 20}, .diameter = 20, .paint = test::white.withOpacity(0.5)};
    EXPECT_NEAR(brightness(picture({40, 40}, {disc}), 20, 20), 128, 1);
}

TEST(Painter, aRingIsRoundCentredAndHollow)
{
    const QImage image = picture({60, 60}, {Ellipse{.center = {30, 30}, .diameter = 40, .paint = thick}});
    EXPECT_EQ(ink(image), QRect(8, 8, 44, 44));
    EXPECT_EQ(brightness(image, 30, 30), 0);
    for (int degrees = 0; degrees < 360; degrees += 15) {
        const double angle = degrees * 3.14159265 / 180;
        const auto at = [&](double radius) {
            return brightness(image, static_cast<int>(std::floor(30 + radius * std::cos(angle))),
                static_cast<int>(std::floor(30 + radius * std::sin(angle))));
        };
        EXPECT_GT(at(20), 240) << degrees;
        EXPECT_LT(at(16.5), 20) << degrees;
        EXPECT_LT(at(24), 20) << degrees;
    }
}

TEST(Painter, aSegmentEndsAtItsEnds)
{
    const QImage image = picture({60, 20}, {Segment{.from = {10, 10}, .to = {50, 10}, .stroke = thick}});
    EXPECT_EQ(ink(image), QRect(10, 8, 40, 4));
}

TEST(Painter, laterItemsAreDrawnOverEarlierOnes)
{
    const QImage image = picture({20, 20},
        {
            Ellipse{.center = {10, 10}, .diameter = 18, .paint = Color{1, 0, 0}},
            Ellipse{.center = {10, 10}, .diameter = 8, .paint = Color{0, 0, 1}},
        });
    EXPECT_EQ(image.pixelColor(10, 10), QColor(0, 0, 255));
    EXPECT_EQ(image.pixelColor(10, 3), QColor(255, 0, 0));
}

TEST(Painter, trackingSpreadsTheInk)
{
    const auto inkWidth = [](double tracking) {
        const TextLine line{
            .origin = {5, 20},
            .width = 0,
            .string = "RADAR",
            .face = {.size = 12},
            .tracking = tracking,
            .color = test::white,
        };
        return ink(picture({120, 30}, {line})).width();
    };
    EXPECT_NEAR(inkWidth(3) - inkWidth(0), 4 * 3, 1);
}

TEST(Painter, textIsPlacedBetweenPixels)
{
    const auto at = [](double x) {
        const TextLine line{
            .origin = {x, 20},
            .width = 0,
            .string = "l",
            .face = {.size = 16},
            .tracking = 0,
            .color = test::white,
        };
        return picture({40, 30}, {line});
    };
    EXPECT_GT(test::difference(at(10), at(10.5)), 0.5);
    EXPECT_EQ(at(10).copy(0, 0, 39, 30), at(11).copy(1, 0, 39, 30));
}

TEST(Painter, glyphsBendToPixelsWherePixelsAreLargeOnly)
{
    for (const double scale : {1.0, 1.25, 1.49}) {
        for (const double pixels : {8, 9, 10})
            EXPECT_GT(sharpness(lettersPainted(scale, pixels)), sharpness(lettersUnhinted(scale, pixels)) + 5)
                << scale << ", " << pixels;
    }
    for (const double scale : {1.5, 2.0, 3.0})
        EXPECT_EQ(lettersPainted(scale, 9), lettersUnhinted(scale, 9)) << scale;
}

TEST(Painter, theInkOfALaidOutViewStaysInsideItsFrame)
{
    const FontMeasurer fonts;
    const View view = HStack{.spacing = 4}({
        symbol("airplane").font({.size = 12}).rotated(90).foreground(test::white),
        text("Lufthansa 400 from Frankfurt")
            .font({.size = 12, .weight = FontWeight::bold})
            .lineLimit(1)
            .foreground(test::white),
        text("12,500 ft").font({.size = 9, .design = FontDesign::monospaced}).foreground(test::white),
    });
    const QImage image = renderImage(layout(view, {140, 40}, fonts), test::black, 1, fonts);
    const QRect bounds = ink(image);
    EXPECT_LE(bounds.left(), 3);
    EXPECT_GE(bounds.right(), 134);
    EXPECT_GT(bounds.top(), 0);
    EXPECT_LT(bounds.bottom(), 39);
    EXPECT_EQ(ink(image.copy(0, 0, 1, 40)), QRect());
    EXPECT_EQ(ink(image.copy(139, 0, 1, 40)), QRect());
}

TEST(Painter, oneUnitIsOnePointWhateverTheDevicesResolution)
{
    const FontMeasurer fonts;
    const DisplayList list
        = layout(text("Skyvane").font({.size = 20}).foreground(test::white), {120, 40}, fonts);
    const auto painted = [&](int dotsPerMeter) {
        QImage image{120, 40, QImage::Format_ARGB32_Premultiplied};
        image.fill(Qt::black);
        image.setDotsPerMeterX(dotsPerMeter);
        image.setDotsPerMeterY(dotsPerMeter);
        QPainter painter{&image};
        paint(list, painter, fonts);
        painter.end();
        return ink(image);
    };
    EXPECT_EQ(painted(2835), painted(11811));
}

TEST(Painter, outlinesLookLikeGlyphs)
{
    const FontMeasurer fonts;
    const DisplayList list
        = layout(text("Skyvane").font({.size = 20}).foreground(test::white), {120, 40}, fonts);
    QImage image{120, 40, QImage::Format_ARGB32_Premultiplied};
    image.fill(Qt::black);
    QPainter painter{&image};
    paint(list, painter, fonts, TextForm::outlines);
    painter.end();
    EXPECT_LT(test::difference(image, renderImage(list, test::black, 1, fonts)), 4);
}

TEST(Painter, thePaintersStateIsLeftAsItWas)
{
    QImage image{10, 10, QImage::Format_ARGB32_Premultiplied};
    QPainter painter{&image};
    painter.setPen(Qt::red);
    paint({.size = {10, 10}, .items = {Segment{.from = {0, 0}, .to = {9, 9}, .stroke = thick}}}, painter,
        FontMeasurer{});
    EXPECT_EQ(painter.pen().color(), QColor(Qt::red));
    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
}

TEST(Painter, placesFarAwayAndEmptyShapesDrawNothing)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const QImage image = picture({20, 20},
        {
            Ellipse{.center = {10, 10}, .diameter = infinity, .paint = thick},
            Ellipse{.center = {10, 10}, .diameter = -4, .paint = test::white},
            Ellipse{.center = {10, 10}, .diameter = 8, .paint = Stroke{.color = test::white, .width = 0}},
            Segment{.from = {-1e300, 10}, .to = {1e300, 10}, .stroke = thick},
            Pictogram{
                .center = {10, 10}, .side = 8, .name = "house", .rotation = infinity, .color = test::white},
            TextLine{.origin = {1e300, 0},
                .width = 1,
                .string = "A",
                .face = {.size = 9},
                .tracking = 0,
                .color = test::white},
        });
    EXPECT_EQ(ink(image), QRect());
}

} // namespace skyvane
