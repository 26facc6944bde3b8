#include "host/desktop/widget_window.h"

#include "host/session/desktop_way.h"
#include "tests/session/wait_for.h"
#include "ui/tree/build.h"

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QWindow>

#include <gmock/gmock.h>

#include <limits>

namespace skyvane {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

URL url(const std::string& text)
{
    return URL::parse(text).value();
}

View half(const std::string& link)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const View filled{Frame{.maxWidth = infinity, .maxHeight = infinity, .child = {spacer()}}};
    return View{Link{.url = url(link), .child = {filled}}};
}

ShownEntry content(std::vector<View> rows, const char* tap = "skyvane://open")
{
    return {.entry = {
                .date = {},
                .isSample = false,
                .view = View{VStack{.children = std::move(rows)}},
                .background = {0, 0, 1},
                .url = url(tap),
            }};
}

/// Windows of such a desktop stay where they are while the pointer holds them, and only their own coordinates
/// are to be relied on.
class StillWay : public DesktopWay {
public:
    bool movesUnderPointer() const override { return false; }
};

class WidgetWindowTest : public testing::Test {
protected:
    void send(QEvent::Type type, QPointF place, Qt::MouseButton button = Qt::LeftButton)
    {
        QMouseEvent event{type, place, window.mapToGlobal(place), button, button, Qt::NoModifier};
        QApplication::sendEvent(&window, &event);
    }

    void tap(QPointF place)
    {
        send(QEvent::MouseButtonPress, place);
        send(QEvent::MouseButtonRelease, place);
    }

    void press(int key)
    {
        QKeyEvent event{QEvent::KeyPress, key, Qt::NoModifier};
        QApplication::sendEvent(&window, &event);
    }

    QImage picture() { return window.grab().toImage(); }

    FontMeasurer fonts;
    std::vector<std::string> opened;
    int drops = 0;
    DesktopWay way;
    WidgetWindow window{WidgetFamily::small, fonts, way,
        {
            .open = [this](const URL& target, const QString&) { opened.push_back(target.text()); },
            .snapped = [](const QRect& frame) { return frame.translated(1, 2); },
            .dropped = [this] { ++drops; },
            .menu = [](const QPoint&, std::uint32_t) {},
        }};
};

} // namespace

TEST_F(WidgetWindowTest, aTapOpensTheLinkUnderItElseTheWidgetsOwn)
{
    window.showContent(content({half("skyvane://aircraft/first"), half("skyvane://aircraft/second")}));
    tap({85, 40});
    tap({85, 130});
    tap({5, 85});
    EXPECT_THAT(
        opened, ElementsAre("skyvane://aircraft/first", "skyvane://aircraft/second", "skyvane://open"));
}

TEST_F(WidgetWindowTest, noOtherSchemeIsEverOpened)
{
    window.showContent(content({half("https://example.org/"), half("file:///etc/passwd")}, "javascript:1"));
    for (const QPointF place : {QPointF{85, 40}, QPointF{85, 130}, QPointF{5, 85}})
        tap(place);
    EXPECT_THAT(opened, IsEmpty());
}

TEST_F(WidgetWindowTest, withoutContentATapDoesNothing)
{
    tap({85, 85});
    press(Qt::Key_Return);
    EXPECT_THAT(opened, IsEmpty());
}

TEST_F(WidgetWindowTest, aDragMovesAndOpensNothing)
{
    window.showContent(content({half("skyvane://aircraft/first")}));
    window.move(100, 100);
    send(QEvent::MouseButtonPress, {50, 50});
    send(QEvent::MouseMove, {50.0 + QApplication::startDragDistance(), 50});
    EXPECT_EQ(window.pos(), QPoint(101 + QApplication::startDragDistance(), 102));
    send(QEvent::MouseButtonRelease, {50, 50});
    EXPECT_EQ(drops, 1);
    EXPECT_THAT(opened, IsEmpty());
}

TEST_F(WidgetWindowTest, aWindowThatStaysIsFollowedByItsPictureAndMovesWhenItIsDropped)
{
    StillWay stillWay;
    WidgetWindow still{WidgetFamily::small, fonts, stillWay,
        {
            .open = [](const URL&, const QString&) {},
            .snapped = [](const QRect& frame) { return frame; },
            .dropped = [this] { ++drops; },
            .menu = [](const QPoint&, std::uint32_t) {},
        }};
    still.showContent(content({spacer()}));
    still.move(100, 100);
    still.show();
    const auto send = [&](QEvent::Type type, QPointF place) {
        QMouseEvent event{type, place, place, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier};
        QApplication::sendEvent(&still, &event);
    };
    const auto picture = [&]() -> QWidget* {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->isVisible() && widget != &still)
                return widget;
        }
        return nullptr;
    };
    send(QEvent::MouseButtonPress, {50, 50});
    for (const QPointF place : {QPointF{80, 50}, QPointF{-250, 350}, QPointF{-40, 112}})
        send(QEvent::MouseMove, place);
    EXPECT_EQ(still.pos(), QPoint(100, 100));
    ASSERT_NE(picture(), nullptr);
    EXPECT_EQ(picture()->geometry(), QRect(10, 162, 170, 170));
    EXPECT_EQ(picture()->grab().toImage().pixelColor(85, 85), QColor(0, 0, 255));
    EXPECT_EQ(still.grab().toImage().pixelColor(85, 85).alpha(), 0);
    send(QEvent::MouseButtonRelease, {-40, 112});
    EXPECT_EQ(still.pos(), QPoint(10, 162));
    EXPECT_EQ(picture(), nullptr);
    EXPECT_EQ(still.grab().toImage().pixelColor(85, 85), QColor(0, 0, 255));
    EXPECT_EQ(drops, 1);
}

TEST_F(WidgetWindowTest, lessThanTheDragDistanceIsATap)
{
    window.showContent(content({half("skyvane://aircraft/first")}));
    window.move(100, 100);
    send(QEvent::MouseButtonPress, {50, 50});
    send(QEvent::MouseMove, {51, 50});
    send(QEvent::MouseButtonRelease, {51, 50});
    EXPECT_EQ(window.pos(), QPoint(100, 100));
    EXPECT_EQ(drops, 0);
    EXPECT_THAT(opened, ElementsAre("skyvane://aircraft/first"));
}

TEST_F(WidgetWindowTest, theCursorIsAHandOverLinksOnly)
{
    window.showContent(content({half("skyvane://aircraft/first")}));
    send(QEvent::MouseMove, {85, 85}, Qt::NoButton);
    EXPECT_EQ(window.cursor().shape(), Qt::PointingHandCursor);
    send(QEvent::MouseMove, {5, 5}, Qt::NoButton);
    EXPECT_EQ(window.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(WidgetWindowTest, tabAndEnterReachEveryLinkVisibly)
{
    window.showContent(content({half("skyvane://aircraft/first"), half("skyvane://aircraft/second")}));
    window.show();
    window.activateWindow();
    window.setFocus();
    ASSERT_TRUE(test::waitFor([&] { return window.hasFocus(); }));
    const QImage unfocused = picture();
    press(Qt::Key_Return);
    press(Qt::Key_Tab);
    const QImage first = picture();
    press(Qt::Key_Return);
    press(Qt::Key_Tab);
    const QImage second = picture();
    press(Qt::Key_Enter);
    press(Qt::Key_Tab);
    press(Qt::Key_Backtab);
    press(Qt::Key_Enter);
    EXPECT_THAT(opened,
        ElementsAre("skyvane://open", "skyvane://aircraft/first", "skyvane://aircraft/second",
            "skyvane://aircraft/second"));
    EXPECT_NE(first, unfocused);
    EXPECT_NE(second, unfocused);
    EXPECT_NE(second, first);
}

TEST_F(WidgetWindowTest, whatIsStaleIsMarkedAndSaidSo)
{
    ShownEntry shown = content({spacer()});
    window.showContent(shown);
    window.setNames("Clock", "The time.");
    const QImage fresh = picture();
    shown.isStale = true;
    window.showContent(shown);
    EXPECT_NE(picture(), fresh);
    EXPECT_EQ(window.accessibleName(), "Clock");
    EXPECT_EQ(window.accessibleDescription(), "Not up to date.");
}

TEST_F(WidgetWindowTest, whatIsStaleSinceTheExtensionStopsAtEachRequestSaysThatToo)
{
    ShownEntry shown = content({spacer()});
    shown.isStale = true;
    shown.isExtensionStopping = true;
    window.showContent(shown);
    const QString why = "Not up to date: the program behind the widgets stops at each request.";
    EXPECT_EQ(window.toolTip(), why);
    EXPECT_EQ(window.accessibleDescription(), why);
}

TEST_F(WidgetWindowTest, whatIsRefreshingIsMarkedAndSaidSoWhateverElseItIs)
{
    ShownEntry shown = content({spacer()});
    window.showContent(shown);
    const QImage fresh = picture();
    shown.isStale = true;
    window.showContent(shown);
    const QImage stale = picture();
    shown.isRefreshing = true;
    window.showContent(shown);
    EXPECT_NE(picture(), fresh);
    EXPECT_NE(picture(), stale);
    EXPECT_EQ(window.accessibleDescription(), "Refreshing.");
    window.showContent(content({spacer()}));
    EXPECT_EQ(picture(), fresh);
    EXPECT_EQ(window.accessibleDescription(), "");
}

TEST_F(WidgetWindowTest, shapedItIsCutAlongItsRoundCorners)
{
    window.setShaped(true);
    EXPECT_FALSE(window.windowHandle()->mask().contains(QPoint{3, 3}));
    EXPECT_TRUE(window.windowHandle()->mask().contains(QPoint{3, 85}));
    EXPECT_TRUE(window.windowHandle()->mask().contains(QPoint{85, 168}));
    EXPECT_EQ(window.windowHandle()->mask().boundingRect(), window.rect());
    window.setShaped(false);
    EXPECT_TRUE(window.windowHandle()->mask().isEmpty());
}

TEST_F(WidgetWindowTest, itsShapeIsTheSameAtAllFourCorners)
{
    window.setShaped(true);
    const QRegion shape = window.windowHandle()->mask();
    const auto has = [&](int x, int y) { return shape.contains(QPoint{x, y}); };
    const int right = window.width() - 1;
    const int bottom = window.height() - 1;
    for (int y = 0; y < 30; ++y) {
        for (int x = 0; x < 30; ++x) {
            EXPECT_EQ(has(right - x, y), has(x, y));
            EXPECT_EQ(has(x, bottom - y), has(x, y));
            EXPECT_EQ(has(y, x), has(x, y));
        }
    }
}

TEST_F(WidgetWindowTest, itsCornersAreRoundAndItsSizeIsTheFamilys)
{
    window.showContent(content({spacer()}));
    const QImage image = picture();
    EXPECT_EQ(window.size(), QSize(170, 170));
    EXPECT_EQ(image.pixelColor(85, 2), QColor(0, 0, 255));
    EXPECT_EQ(image.pixelColor(1, 1).alpha(), 0);
}

} // namespace skyvane
