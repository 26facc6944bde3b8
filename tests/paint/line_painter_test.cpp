#include "paint/line_painter.h"

#include "paint/to_qt.h"
#include "tests/paint/canvas.h"
#include "tests/paint/picture.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstdlib>
#include <optional>

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

/// How many pixels of a line at half strength a cut across it meets; none when one has another strength.
std::optional<int> pixelsAcross(const QImage& image, bool isRow)
{
    int lit = 0;
    for (int place = 0; place < 100; ++place) {
        const int brightness = isRow ? test::brightness(image, 3, place) : test::brightness(image, place, 3);
        if (brightness != 0 && std::abs(brightness - 128) > 1)
            return std::nullopt;
        lit += brightness > 0 ? 1 : 0;
    }
    return lit;
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
    expectLineAsByTheToolkit({.transform = QTransform::fromScale(1.25, 1.25)}, {10, 20}, {60, 30});
    expectLineAsByTheToolkit(
        {.resolution = 2, .transform = QTransform::fromTranslate(5, 3)}, {10, 2}, {30, 40});
    expectLineAsByTheToolkit({.transform = QTransform{}.translate(50, 0).rotate(30)}, {10, 20}, {60, 20});
    expectLineAsByTheToolkit({.background = QColor{0, 0, 0, 0}}, {110, 20}, {5.5, 90});
}

TEST(LinePainter, aLineAlongAnAxisFillsWholePixelsOnly)
{
    struct Row {
        double scale;
        double width;
        int pixels;
    };
    for (const Row& row : {Row{1, 0.5, 1}, Row{1.25, 0.5, 1}, Row{1.5, 0.5, 1}, Row{2, 0.5, 1},
             Row{3, 0.5, 2}, Row{1, 2, 2}, Row{1.5, 2, 3}}) {
        const Stroke stroke{.color = test::white.withOpacity(0.5), .width = row.width};
        for (const QPointF to : {QPointF{20, 21}, QPointF{21, 20}}) {
            const QPointF from = to.y() == 21 ? QPointF{0, 21} : QPointF{21, 0};
            const QImage image = test::painted(
                {.background = Qt::black, .transform = QTransform::fromScale(row.scale, row.scale)},
                [&](QPainter& painter) { paintLine(painter, stroke, from, to); });
            EXPECT_EQ(pixelsAcross(image, from.x() == 0), row.pixels) << row.scale << ", " << row.width;
        }
    }
}

TEST(LinePainter, aLineAlongAnAxisIsWithinHalfAPixelOfItsPlace)
{
    for (const double place : {10.0, 10.3, 10.5, 10.8}) {
        const QImage image = test::painted({.background = Qt::black}, [&](QPainter& painter) {
            paintLine(painter, {.color = test::white, .width = 1}, {20, place}, {80, place});
        });
        const QRect ink = test::ink(image);
        EXPECT_EQ(ink.height(), 1);
        EXPECT_LE(std::abs(ink.y() + 0.5 - place), 0.5) << place;
        EXPECT_EQ(ink.x(), 20);
        EXPECT_EQ(ink.width(), 60);
    }
}

TEST(LinePainter, aLineWithoutLengthIsNothing)
{
    const QImage image = test::painted({}, [](QPainter& painter) {
        paintLine(painter, faintLine, {10, 10}, {10, 10});
    });
    EXPECT_EQ(test::largestDifference(image, test::untouched({})), 0);
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
