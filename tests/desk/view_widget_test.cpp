#include "desk/view_widget.h"

#include "tests/session/wait_for.h"
#include "ui/tree/build.h"

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>

#include <gmock/gmock.h>

#include <limits>

namespace skyvane {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

View half(const char* target)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const View filled{Frame{.maxWidth = infinity, .maxHeight = infinity, .child = {spacer()}}};
    return View{Link{.url = URL::parse(target).value(), .child = {filled}}};
}

View twoHalves()
{
    return View{VStack{.children = {half("skyvane://aircraft/a"), half("https://example.org/b")}}};
}

constexpr Color blue{0, 0, 1};

class ViewWidgetTest : public testing::Test {
protected:
    ViewWidgetTest()
    {
        view.resize(200, 200);
        QObject::connect(
            &view, &ViewWidget::linkActivated, [this](const URL& url) { opened.push_back(url.text()); });
    }

    void send(QEvent::Type type, QPointF place, Qt::MouseButton button = Qt::LeftButton)
    {
        QMouseEvent event{type, place, view.mapToGlobal(place), button, button, Qt::NoModifier};
        QApplication::sendEvent(&view, &event);
    }

    void press(int key)
    {
        QKeyEvent event{QEvent::KeyPress, key, Qt::NoModifier};
        QApplication::sendEvent(&view, &event);
    }

    FontMeasurer fonts;
    QWidget window; ///< Of those tests that need one; it must outlive what stands in it.
    ViewWidget view{fonts};
    std::vector<std::string> opened;
};

} // namespace

TEST_F(ViewWidgetTest, aTapTellsTheLinkUnderItWhateverItsScheme)
{
    view.showBare(twoHalves());
    for (const double y : {50.0, 150.0}) {
        send(QEvent::MouseButtonPress, {100, y});
        send(QEvent::MouseButtonRelease, {100, y});
    }
    EXPECT_THAT(opened, ElementsAre("skyvane://aircraft/a", "https://example.org/b"));
}

TEST_F(ViewWidgetTest, aPressThatEndsElsewhereIsNoTapNorIsAnotherButton)
{
    view.showBare(twoHalves());
    send(QEvent::MouseButtonPress, {100, 50});
    send(QEvent::MouseButtonRelease, {100, 150});
    send(QEvent::MouseButtonPress, {100, 50}, Qt::RightButton);
    send(QEvent::MouseButtonRelease, {100, 50}, Qt::RightButton);
    EXPECT_THAT(opened, IsEmpty());
}

TEST_F(ViewWidgetTest, aCardKeepsItsMarginsFreeAndItsCornersRound)
{
    view.showCard(twoHalves(), blue);
    send(QEvent::MouseButtonPress, {8, 50});
    send(QEvent::MouseButtonRelease, {8, 50});
    EXPECT_THAT(opened, IsEmpty());
    QImage image{view.size(), QImage::Format_ARGB32_Premultiplied};
    image.fill(Qt::transparent);
    view.render(&image, {}, {}, QWidget::DrawChildren);
    EXPECT_EQ(image.pixelColor(100, 2), QColor(0, 0, 255));
    EXPECT_EQ(image.pixelColor(1, 1).alpha(), 0);
}

TEST_F(ViewWidgetTest, isSharpAtTheScaleOfTheScreen)
{
    view.showCard(text("Sharp").foreground({1, 1, 1}), blue);
    QImage fine{view.size() * 2, QImage::Format_ARGB32_Premultiplied};
    fine.setDevicePixelRatio(2);
    fine.fill(Qt::transparent);
    view.render(&fine, {}, {}, QWidget::DrawChildren);
    QImage coarse{view.size(), QImage::Format_ARGB32_Premultiplied};
    coarse.fill(Qt::transparent);
    view.render(&coarse, {}, {}, QWidget::DrawChildren);
    EXPECT_NE(fine, coarse.scaled(fine.size()));
}

TEST_F(ViewWidgetTest, isLaidOutAnewForAnotherSize)
{
    view.showBare(twoHalves());
    view.resize(200, 400);
    QResizeEvent event{{200, 400}, {200, 200}};
    QApplication::sendEvent(&view, &event);
    send(QEvent::MouseButtonPress, {100, 150});
    send(QEvent::MouseButtonRelease, {100, 150});
    EXPECT_THAT(opened, ElementsAre("skyvane://aircraft/a"));
}

TEST_F(ViewWidgetTest, itsTextsAreSpoken)
{
    view.setAccessibleName("Radar");
    view.showBare(HStack{.spacing = 4}({text("Two"), text("words")}));
    EXPECT_EQ(view.accessibleName(), "Radar");
    EXPECT_EQ(view.accessibleDescription(), "Two, words");
}

TEST_F(ViewWidgetTest, withoutLinksItTakesNoFocus)
{
    view.showBare(text("Words"));
    EXPECT_EQ(view.focusPolicy(), Qt::NoFocus);
    view.showBare(twoHalves());
    EXPECT_EQ(view.focusPolicy(), Qt::TabFocus);
}

TEST_F(ViewWidgetTest, tabReachesEveryLinkAndLeavesBehindTheLast)
{
    QWidget before{&window};
    view.setParent(&window);
    QWidget after{&window};
    for (QWidget* neighbour : {&before, &after})
        neighbour->setFocusPolicy(Qt::TabFocus);
    view.showBare(twoHalves());
    window.show();
    window.activateWindow();
    before.setFocus();
    ASSERT_TRUE(test::waitFor([&] { return before.hasFocus(); }));
    QWidget::setTabOrder(&before, &view);
    QWidget::setTabOrder(&view, &after);
    QKeyEvent tab{QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier};
    QApplication::sendEvent(&before, &tab);
    ASSERT_TRUE(test::waitFor([&] { return view.hasFocus(); }));
    press(Qt::Key_Return);
    press(Qt::Key_Tab);
    press(Qt::Key_Enter);
    EXPECT_TRUE(view.hasFocus());
    press(Qt::Key_Tab);
    EXPECT_TRUE(after.hasFocus());
    EXPECT_THAT(opened, ElementsAre("skyvane://aircraft/a", "https://example.org/b"));
}

TEST_F(ViewWidgetTest, aViewThatGoesTakesItsLinksWithIt)
{
    view.showBare(twoHalves());
    send(QEvent::MouseButtonPress, {100, 150});
    view.showBare(text("Words"));
    send(QEvent::MouseButtonRelease, {100, 150});
    view.setFocus();
    press(Qt::Key_Return);
    EXPECT_THAT(opened, IsEmpty());
}

} // namespace skyvane
