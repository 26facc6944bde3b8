#include "companion/look/reading_direction.h"

#include "companion/look/details.h"
#include "companion/look/line_icon.h"
#include "companion/sky/aircraft_delegate.h"
#include "companion/sky/flat_header.h"
#include "companion/sky/sky_model.h"

#include <QImage>
#include <QPainter>
#include <QStandardItemModel>
#include <QStyleOptionViewItem>
#include <QToolButton>

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace skyvane {

namespace {

/// As where the language runs from right to left, until the end of the scope.
class FromRightToLeft {
public:
    FromRightToLeft() { QGuiApplication::setLayoutDirection(Qt::RightToLeft); }
    ~FromRightToLeft() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }
    FromRightToLeft(const FromRightToLeft&) = delete;
    FromRightToLeft& operator=(const FromRightToLeft&) = delete;
};

constexpr QSize cell{300, 24};

QImage blank()
{
    QImage image{cell, QImage::Format_ARGB32_Premultiplied};
    image.fill(Qt::white);
    return image;
}

/// The first and the last column that something was painted in.
std::pair<int, int> inkOf(const QImage& image)
{
    std::pair<int, int> columns{image.width(), -1};
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixelColor(x, y).lightness() < 128)
                columns = {std::min(columns.first, x), x};
        }
    }
    return columns;
}

std::pair<int, int> inkOfAircraft(const QString& badge, Qt::LayoutDirection direction)
{
    QStandardItemModel model{1, 1};
    model.setData(model.index(0, 0), QStringLiteral("BAW1"));
    model.setData(model.index(0, 0), badge, SkyModel::BadgeRole);
    QStyleOptionViewItem option;
    option.direction = direction;
    option.rect = QRect{{0, 0}, cell};
    option.palette.setColor(QPalette::Base, Qt::white);
    option.palette.setColor(QPalette::Text, Qt::black);
    QImage image = blank();
    QPainter painter{&image};
    painter.setLayoutDirection(direction);
    AircraftDelegate{}.paint(&painter, option, model.index(0, 0));
    painter.end();
    return inkOf(image);
}

constexpr int side = 64; ///< Of an icon's square.

QImage pictureOf(LineIcon icon)
{
    return lineIcon(icon).pixmap(QSize{side, side}).toImage();
}

/// The column of what is painted half way down, where an arrow has its tip.
int tipOf(const QImage& icon)
{
    int column = 0;
    while (column < side && icon.pixelColor(column, side / 2).alpha() < 128)
        ++column;
    return column;
}

} // namespace

TEST(ReadingDirection, marginsAreMirroredWithTheRowInsideThem)
{
    EXPECT_EQ(inReadingDirection({20, 14, 12, 13}), (QMargins{20, 14, 12, 13}));
    const FromRightToLeft there;
    EXPECT_EQ(inReadingDirection({20, 14, 12, 13}), (QMargins{12, 14, 20, 13}));
}

TEST(ReadingDirection, backPointsToWhereLinesBeginAndOtherIconsAreTheSame)
{
    const QImage refresh = pictureOf(LineIcon::refresh);
    EXPECT_LT(tipOf(pictureOf(LineIcon::back)), side / 2);
    const FromRightToLeft there;
    EXPECT_GT(tipOf(pictureOf(LineIcon::back)), side / 2);
    EXPECT_EQ(pictureOf(LineIcon::refresh), refresh);
}

TEST(ReadingDirection, detailsUnfoldFromWhereLinesBegin)
{
    EXPECT_EQ(Details{Qt::AlignLeft}.findChild<QToolButton*>()->arrowType(), Qt::RightArrow);
    const FromRightToLeft there;
    Details details{Qt::AlignLeft};
    EXPECT_EQ(details.findChild<QToolButton*>()->arrowType(), Qt::LeftArrow);
    details.findChild<QToolButton*>()->click();
    EXPECT_EQ(details.findChild<QToolButton*>()->arrowType(), Qt::DownArrow);
}

TEST(ReadingDirection, anAircraftsGlyphIsBeforeItsNameAndItsBadgeAtTheEnd)
{
    const auto [left, right] = inkOfAircraft({}, Qt::LeftToRight);
    EXPECT_LT(left, 20);
    EXPECT_LT(right, cell.width() / 2);
    const auto [mirroredLeft, mirroredRight] = inkOfAircraft({}, Qt::RightToLeft);
    EXPECT_GT(mirroredLeft, cell.width() / 2);
    EXPECT_GT(mirroredRight, cell.width() - 20);
    EXPECT_GT(inkOfAircraft("Military", Qt::LeftToRight).second, cell.width() - 20);
    EXPECT_LT(inkOfAircraft("Military", Qt::RightToLeft).first, 20);
}

TEST(ReadingDirection, theArrowOfTheSortedColumnIsAtTheEndOfItsHeading)
{
    const auto inkOfHeading = [] {
        QStandardItemModel model{1, 1};
        model.setHorizontalHeaderLabels({QString{}});
        FlatHeader header{nullptr};
        header.setModel(&model);
        header.setSortIndicatorShown(true);
        header.setSortIndicator(0, Qt::AscendingOrder);
        header.resize(cell);
        header.resizeSection(0, cell.width());
        QImage image = blank();
        header.render(&image);
        return inkOf(image.copy(0, 0, cell.width(), cell.height() - 4));
    };
    EXPECT_GT(inkOfHeading().first, cell.width() - 20);
    const FromRightToLeft there;
    EXPECT_LT(inkOfHeading().second, 20);
}

} // namespace skyvane
