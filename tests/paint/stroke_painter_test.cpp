#include "paint/stroke_painter.h"

#include "paint/to_qt.h"
#include "tests/paint/picture.h"

#include <QPainter>

#include <gmock/gmock.h>

#include <cmath>

namespace skyvane {

namespace {

constexpr Stroke faint{.color = {0.4, 1, 0.6, 0.3}, .width = 1.5};

struct Canvas {
    QSize pixels{120, 100};
    double resolution = 1; ///< Pixels a unit of the device.
    QColor background = Qt::darkBlue;
    QTransform transform{};
};

template <class Draw>
QImage painted(const Canvas& canvas, const Draw& draw)
{
    QImage image{canvas.pixels, QImage::Format_ARGB32_Premultiplied};
    image.setDevicePixelRatio(canvas.resolution);
    image.fill(canvas.background);
    QPainter painter{&image};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setTransform(canvas.transform);
    draw(painter);
    painter.end();
    return image;
}

/// The largest difference of any channel of any pixel.
int largestDifference(const QImage& one, const QImage& another)
{
    int largest = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = another.pixelColor(x, y);
            largest = std::max({largest, std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                std::abs(a.blue() - b.blue()), std::abs(a.alpha() - b.alpha())});
        }
    }
    return largest;
}

void expectDrawnAsByTheToolkit(const Canvas& canvas, QPointF center, double radius)
{
    const QPointF corner{radius, radius};
    const auto ring = [&](QPainter& painter) { painter.drawEllipse(center, radius, radius); };
    const QImage ours = painted(canvas, [&](QPainter& painter) {
        paintStroke(painter, faint, {center - corner, center + corner}, ring);
    });
    const QImage theirs = painted(canvas, [&](QPainter& painter) {
        painter.setPen(QPen{toQt(faint.color), faint.width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin});
        ring(painter);
    });
    EXPECT_LE(largestDifference(ours, theirs), 2);
    EXPECT_GT(largestDifference(ours, painted(canvas, [](QPainter&) {})), 20);
}

} // namespace

TEST(StrokePainter, aTranslucentRingBlendsWithWhatIsThere)
{
    expectDrawnAsByTheToolkit({}, {60, 50}, 40);
    expectDrawnAsByTheToolkit({.background = QColor{200, 40, 0}}, {60.3, 49.7}, 31.5);
}

TEST(StrokePainter, aTranslucentRingStaysTranslucentWhereNothingIs)
{
    expectDrawnAsByTheToolkit({.background = QColor{0, 0, 0, 0}}, {60, 50}, 40);
}

TEST(StrokePainter, aRingIsTheSameAtEveryScaleAndPlace)
{
    expectDrawnAsByTheToolkit({.transform = QTransform::fromScale(2, 2)}, {30, 25}, 20);
    expectDrawnAsByTheToolkit({.transform = QTransform::fromScale(1.25, 1.25)}, {40, 40}, 30);
    expectDrawnAsByTheToolkit({.transform = QTransform::fromTranslate(10.5, -7.25)}, {50, 50}, 40);
}

TEST(StrokePainter, aRingIsTheSameAtEveryResolution)
{
    expectDrawnAsByTheToolkit({.resolution = 2}, {30, 25}, 20);
    expectDrawnAsByTheToolkit({.resolution = 1.5}, {40, 33}, 25);
    expectDrawnAsByTheToolkit({.resolution = 2, .transform = QTransform::fromTranslate(5, 3)}, {25, 22}, 20);
}

TEST(StrokePainter, aRingThatReachesOutOfThePictureIsCutOff)
{
    expectDrawnAsByTheToolkit({}, {0, 0}, 60);
    expectDrawnAsByTheToolkit({}, {4800, 50}, 4750);
}

TEST(StrokePainter, aStraightLineBlendsWithWhatIsThere)
{
    const auto line = [](QPainter& painter) { painter.drawLine(QPointF{10, 50}, QPointF{110, 50}); };
    const QImage image = painted({.background = Qt::black}, [&](QPainter& painter) {
        paintStroke(painter, {.color = test::white.withOpacity(0.5), .width = 2}, {10, 50, 100, 0}, line);
    });
    EXPECT_EQ(test::ink(image), QRect(10, 49, 100, 2));
    EXPECT_NEAR(test::brightness(image, 60, 49), 128, 1);
}

TEST(StrokePainter, whatIsSeenNowhereIsPaintedNowhere)
{
    const QImage image = painted({}, [](QPainter& painter) {
        paintStroke(painter, faint, {500, 500, 40, 40}, [](QPainter& target) {
            target.drawEllipse(QPointF{520, 520}, 20, 20);
        });
    });
    EXPECT_EQ(largestDifference(image, painted({}, [](QPainter&) {})), 0);
}

TEST(StrokePainter, thePaintersPlaceIsLeftAsItWas)
{
    painted({}, [](QPainter& painter) {
        painter.translate(3, 4);
        paintStroke(painter, faint, {10, 10, 40, 40}, [](QPainter& target) {
            target.drawEllipse(QPointF{30, 30}, 20, 20);
        });
        EXPECT_EQ(painter.transform(), QTransform::fromTranslate(3, 4));
        EXPECT_EQ(painter.compositionMode(), QPainter::CompositionMode_SourceOver);
    });
}

} // namespace skyvane
