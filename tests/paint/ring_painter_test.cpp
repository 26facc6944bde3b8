#include "paint/ring_painter.h"

#include "paint/to_qt.h"
#include "tests/paint/canvas.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace skyvane {

namespace {

constexpr Stroke faintRing{.color = {0.4, 1, 0.6, 0.3}, .width = 1.5};
constexpr Color opaqueWhite{1, 1, 1};

/// In pixels.
struct Circle {
    QPointF center;
    double radius;
};

/// The part of a pixel that lies in a disc: the mean of what lies in each of many lines across it.
double partInDisc(const Circle& disc, int column, int row)
{
    constexpr int lines = 64;
    const double left = column - disc.center.x();
    double sum = 0;
    for (int line = 0; line < lines; ++line) {
        const double y = row + (line + 0.5) / lines - disc.center.y();
        const double halfChord = std::sqrt(std::max(0.0, disc.radius * disc.radius - y * y));
        sum += std::max(0.0, std::min(left + 1, halfChord) - std::max(left, -halfChord));
    }
    return sum / lines;
}

/// The largest difference of any channel of any pixel from what the ring's area in it makes of it.
double largestMistake(
    const QImage& image, const test::Canvas& canvas, const Stroke& pixels, const Circle& ring)
{
    const Circle outer{ring.center, ring.radius + pixels.width / 2};
    const Circle inner{ring.center, std::max(0.0, ring.radius - pixels.width / 2)};
    const QColor color = toQt(pixels.color);
    double largest = 0;
    for (int row = 0; row < image.height(); ++row) {
        for (int column = 0; column < image.width(); ++column) {
            const double covered = partInDisc(outer, column, row) - partInDisc(inner, column, row);
            const double share = covered * color.alphaF();
            const QRgb background = qPremultiply(canvas.background.rgba());
            const QRgb pixel = image.pixel(column, row);
            for (const auto& [is, was, painted] : {
                     std::tuple{qRed(pixel), qRed(background), color.redF()},
                     std::tuple{qGreen(pixel), qGreen(background), color.greenF()},
                     std::tuple{qBlue(pixel), qBlue(background), color.blueF()},
                     std::tuple{qAlpha(pixel), qAlpha(background), 1.0F},
                 })
                largest = std::max(largest, std::abs(is - (was * (1 - share) + 255 * painted * share)));
        }
    }
    return largest;
}

/// On a canvas whose units are so many pixels; a line too wide or too narrow for its pixels fails.
void expectRing(const test::Canvas& canvas, QPointF center, double radius, const Stroke& stroke = faintRing)
{
    const QTransform toPixels
        = canvas.transform * QTransform::fromScale(canvas.resolution, canvas.resolution);
    const double scale = toPixels.m11();
    const QImage image
        = test::painted(canvas, [&](QPainter& painter) { paintRing(painter, stroke, center, radius); });
    const Stroke pixels{.color = stroke.color, .width = stroke.width * scale};
    EXPECT_LE(largestMistake(image, canvas, pixels, {toPixels.map(center), radius * scale}), 4);
    EXPECT_GT(test::largestDifference(image, test::untouched(canvas)), 20);
}

} // namespace

TEST(RingPainter, aTranslucentRingBlendsWithWhatIsThere)
{
    expectRing({}, {60, 50}, 40);
    expectRing({.background = QColor{200, 40, 0}}, {60.3, 49.7}, 31.5);
}

TEST(RingPainter, aTranslucentRingStaysTranslucentWhereNothingIs)
{
    expectRing({.background = QColor{0, 0, 0, 0}}, {60, 50}, 40);
}

TEST(RingPainter, aRingIsAsWideAsItsLine)
{
    expectRing({}, {60, 50}, 40, {.color = opaqueWhite, .width = 12});
    expectRing({}, {60, 50}, 40, {.color = opaqueWhite, .width = 1});
    expectRing({}, {60, 50}, 40, {.color = opaqueWhite, .width = 0.5});
}

TEST(RingPainter, aSmallRingIsRound)
{
    expectRing({}, {60, 50}, 8, {.color = opaqueWhite, .width = 1});
}

TEST(RingPainter, aRingIsTheSameAtEveryScaleAndPlace)
{
    expectRing({.transform = QTransform::fromScale(2, 2)}, {30, 25}, 20);
    expectRing({.transform = QTransform::fromScale(1.25, 1.25)}, {40, 40}, 30);
    expectRing({.transform = QTransform::fromTranslate(10.5, -7.25)}, {50, 50}, 40);
}

TEST(RingPainter, aRingIsTheSameAtEveryResolution)
{
    expectRing({.resolution = 2}, {30, 25}, 20);
    expectRing({.resolution = 1.5}, {40, 33}, 25);
    expectRing({.resolution = 2, .transform = QTransform::fromTranslate(5, 3)}, {25, 22}, 20);
}

TEST(RingPainter, aRingTooSmallOrNoCircleOnThePixelsIsLeftToTheToolkit)
{
    const auto expectTheToolkits = [](const test::Canvas& canvas, double radius, double width) {
        const QPointF center{60, 10};
        const QImage ours = test::painted(canvas, [&](QPainter& painter) {
            paintRing(painter, {.color = opaqueWhite, .width = width}, center, radius);
        });
        const QImage theirs = test::painted(canvas, [&](QPainter& painter) {
            painter.setPen(QPen{Qt::white, width});
            painter.drawEllipse(center, radius, radius);
        });
        EXPECT_EQ(ours, theirs);
        EXPECT_NE(ours, test::untouched(canvas));
    };
    expectTheToolkits({}, 2, 1);
    expectTheToolkits({}, 5, 14);
    expectTheToolkits({.transform = QTransform::fromScale(0.5, 1)}, 20, 1.5);
    expectTheToolkits({.transform = QTransform{}.rotate(30)}, 20, 1.5);
}

TEST(RingPainter, aRingThatReachesOutOfThePictureIsCutOff)
{
    expectRing({}, {0, 0}, 60);
    expectRing({}, {125, 95}, 60);
    expectRing({}, {4800, 50}, 4750);
}

TEST(RingPainter, aRingAroundAPixelsCornerIsSymmetric)
{
    const QImage image = test::painted({.pixels = {100, 100}}, [](QPainter& painter) {
        paintRing(painter, faintRing, {50, 50}, 37.3);
    });
    EXPECT_EQ(image, image.mirrored(/*horizontally=*/true, /*vertically=*/false));
    EXPECT_EQ(image, image.mirrored(/*horizontally=*/false, /*vertically=*/true));
    EXPECT_EQ(image, image.transformed(QTransform{}.rotate(90)));
}

TEST(RingPainter, aRingSeenNowhereIsPaintedNowhere)
{
    const QImage image = test::painted({}, [](QPainter& painter) {
        paintRing(painter, faintRing, {520, 520}, 20);
    });
    EXPECT_EQ(test::largestDifference(image, test::untouched({})), 0);
}

TEST(RingPainter, aRingThatGoesAroundThePictureLeavesItAsItWas)
{
    const QImage image = test::painted({}, [](QPainter& painter) {
        paintRing(painter, faintRing, {60, 50}, 500);
    });
    EXPECT_EQ(test::largestDifference(image, test::untouched({})), 0);
}

TEST(RingPainter, thePaintersPlaceIsLeftAsItWasByARing)
{
    test::painted({}, [](QPainter& painter) {
        painter.translate(3, 4);
        paintRing(painter, faintRing, {30, 30}, 20);
        EXPECT_EQ(painter.transform(), QTransform::fromTranslate(3, 4));
        EXPECT_EQ(painter.compositionMode(), QPainter::CompositionMode_SourceOver);
    });
}

} // namespace skyvane
