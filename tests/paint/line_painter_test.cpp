#include "paint/line_painter.h"

#include "paint/to_qt.h"
#include "tests/paint/canvas.h"
#include "tests/paint/picture.h"

#include <gmock/gmock.h>

namespace skyvane {

namespace {

constexpr Stroke faintLine{.color = {0.4, 1, 0.6, 0.3}, .width = 1.5};

void expectLineAsByTheToolkit(const test::Canvas& canvas, QPointF from, QPointF to)
{
    const QImage ours
        = test::painted(canvas, [&](QPainter& painter) { paintLine(painter, faintLine, from, to); });
    const QImage theirs = test::painted(canvas, [&](QPainter& painter) {
        painter.setPen(QPen{toQt(faintLine.color), faintLine.width, Qt::SolidLine, Qt::FlatCap});
        painter.drawLine(from, to);
    });
    EXPECT_LE(test::largestDifference(ours, theirs), 2);
    EXPECT_GT(test::largestDifference(ours, test::untouched(canvas)), 20);
}

} // namespace

TEST(LinePainter, aStraightLineBlendsWithWhatIsThere)
{
    const QImage image = test::painted({.background = Qt::black}, [](QPainter& painter) {
        paintLine(painter, {.color = test::white.withOpacity(0.5), .width = 2}, {10, 50}, {110, 50});
    });
    EXPECT_EQ(test::ink(image), QRect(10, 49, 100, 2));
    EXPECT_NEAR(test::brightness(image, 60, 49), 128, 1);
}

TEST(LinePainter, aLineIsTheSameAtEveryScaleResolutionAndPlace)
{
    expectLineAsByTheToolkit({}, {10, 20}, {100, 70});
    expectLineAsByTheToolkit({.transform = QTransform::fromScale(1.25, 1.25)}, {10, 20}, {60, 20});
    expectLineAsByTheToolkit(
        {.resolution = 2, .transform = QTransform::fromTranslate(5, 3)}, {10, 2}, {10, 40});
    expectLineAsByTheToolkit({.background = QColor{0, 0, 0, 0}}, {110, 20}, {5.5, 90});
}

TEST(LinePainter, aLineSeenNowhereIsPaintedNowhere)
{
    const QImage image = test::painted({}, [](QPainter& painter) {
        paintLine(painter, faintLine, {500, 500}, {540, 540});
    });
    EXPECT_EQ(test::largestDifference(image, test::untouched({})), 0);
}

TEST(LinePainter, thePaintersPlaceIsLeftAsItWasByALine)
{
    test::painted({}, [](QPainter& painter) {
        painter.translate(3, 4);
        paintLine(painter, faintLine, {10, 10}, {50, 10});
        EXPECT_EQ(painter.transform(), QTransform::fromTranslate(3, 4));
        EXPECT_EQ(painter.compositionMode(), QPainter::CompositionMode_SourceOver);
    });
}

} // namespace skyvane
