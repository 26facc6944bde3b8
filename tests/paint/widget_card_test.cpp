#include "paint/widget_card.h"

#include "tests/paint/picture.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace skyvane {

namespace {

QRect inkOfMark(WidgetCard::Mark mark, TextDirection direction)
{
    QImage image{170, 170, QImage::Format_ARGB32_Premultiplied};
    image.fill(Qt::black);
    QPainter painter{&image};
    WidgetCard::paintMark(mark, image.width(), painter, direction);
    painter.end();
    return test::ink(image);
}

} // namespace

TEST(WidgetCard, aMarkIsInTheCornerAtWhichLinesEnd)
{
    for (const auto mark : {WidgetCard::Mark::stale, WidgetCard::Mark::refreshing}) {
        const QRect atTheRight = inkOfMark(mark, TextDirection::leftToRight);
        const QRect atTheLeft = inkOfMark(mark, TextDirection::rightToLeft);
        EXPECT_GT(atTheRight.left(), 150);
        EXPECT_EQ(atTheLeft,
            (QRect{170 - 1 - atTheRight.right(), atTheRight.top(), atTheRight.width(), atTheRight.height()}));
    }
}

TEST(WidgetCard, withoutAMarkNothingIsPainted)
{
    EXPECT_TRUE(inkOfMark(WidgetCard::Mark::none, TextDirection::leftToRight).isEmpty());
}

} // namespace skyvane
