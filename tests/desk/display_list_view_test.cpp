#include "desk/display_list_view.h"

#include "tests/session/wait_for.h"
#include "ui/tree/build.h"

#include <QAccessible>
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

class DisplayListViewTest : public testing::Test {
protected:
    DisplayListViewTest()
    {
        view.resize(200, 200);
        picture.resize(200, 200);
    }

    void send(QEvent::Type type, QPointF place, Qt::MouseButton button = Qt::LeftButton)
    {
        QMouseEvent event{type, place, view.mapToGlobal(place), button, button, Qt::NoModifier};
        QApplication::sendEvent(&view, &event);
    }

    void tap(QPointF place)
    {
        send(QEvent::MouseButtonPress, place);
        send(QEvent::MouseButtonRelease, place);
    }

    void press(int key)
    {
        QKeyEvent event{QEvent::KeyPress, key, Qt::NoModifier};
        QApplication::sendEvent(&view, &event);
    }

    FontMeasurer fonts;
    QWidget window; ///< Of those tests that need one; it must outlive what stands in it.
    std::vector<std::string> pressed; ///< "card" beside all links.
    DisplayListView view{
        fonts, [this](const URL* link) { pressed.push_back(link != nullptr ? link->text() : "card"); }};
    DisplayListView picture{fonts};
};

} // namespace

TEST_F(DisplayListViewTest, aTapTellsTheLinkUnderItWhateverItsScheme)
{
    view.showCard(twoHalves(), blue);
    tap({100, 50});
    tap({100, 150});
    EXPECT_THAT(pressed, ElementsAre("skyvane://aircraft/a", "https://example.org/b"));
}

TEST_F(DisplayListViewTest, aPressThatEndsElsewhereIsNoTapNorIsAnotherButton)
{
    view.showCard(twoHalves(), blue);
    send(QEvent::MouseButtonPress, {100, 50});
    send(QEvent::MouseButtonRelease, {100, 150});
    send(QEvent::MouseButtonPress, {8, 50});
    send(QEvent::MouseButtonRelease, {-8, 50});
    send(QEvent::MouseButtonPress, {100, 50}, Qt::RightButton);
    send(QEvent::MouseButtonRelease, {100, 50}, Qt::RightButton);
    EXPECT_THAT(pressed, IsEmpty());
}

TEST_F(DisplayListViewTest, aCardKeepsItsMarginsFreeAndItsCornersRound)
{
    view.showCard(twoHalves(), blue);
    tap({8, 50});
    EXPECT_THAT(pressed, ElementsAre("card"));
    QImage image{view.size(), QImage::Format_ARGB32_Premultiplied};
    image.fill(Qt::transparent);
    view.render(&image, {}, {}, QWidget::DrawChildren);
    EXPECT_EQ(image.pixelColor(100, 2), QColor(0, 0, 255));
    EXPECT_EQ(image.pixelColor(1, 1).alpha(), 0);
}

TEST_F(DisplayListViewTest, isSharpAtTheScaleOfTheScreen)
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

TEST_F(DisplayListViewTest, isLaidOutAnewForAnotherSize)
{
    view.showCard(twoHalves(), blue);
    view.resize(200, 400);
    QResizeEvent event{{200, 400}, {200, 200}};
    QApplication::sendEvent(&view, &event);
    tap({100, 150});
    EXPECT_THAT(pressed, ElementsAre("skyvane://aircraft/a"));
}

TEST_F(DisplayListViewTest, fromRightToLeftItIsMirroredAndSpokenFromTheRight)
{
    view.showCard(View{HStack{.children = {half("skyvane://first"), half("skyvane://second")}}}, blue);
    picture.showCard(HStack{.spacing = 4}({text("first"), text("second")}), blue);
    tap({50, 100});
    for (DisplayListView* one : {&view, &picture})
        one->setLayoutDirection(Qt::RightToLeft);
    tap({50, 100});
    EXPECT_THAT(pressed, ElementsAre("skyvane://first", "skyvane://second"));
    EXPECT_EQ(picture.accessibleDescription(), "first, second");
}

TEST_F(DisplayListViewTest, itsTextsAreSpoken)
{
    view.setAccessibleName("Radar");
    view.showCard(HStack{.spacing = 4}({text("Two"), text("words")}), blue);
    EXPECT_EQ(view.accessibleName(), "Radar");
    EXPECT_EQ(view.accessibleDescription(), "Two, words");
}

TEST_F(DisplayListViewTest, aStateIsSpokenBeforeItsTextsAlsoWhenNothingElseChanges)
{
    const View callsign = text("BAW123");
    view.showCard(callsign, blue);
    view.showCard(callsign, blue, "Refreshing.");
    EXPECT_EQ(view.accessibleDescription(), "Refreshing. BAW123");
    view.showCard(callsign, blue);
    EXPECT_EQ(view.accessibleDescription(), "BAW123");
}

TEST_F(DisplayListViewTest, aPictureTakesNeitherFocusNorPointerAndHasNoLinks)
{
    picture.showCard(twoHalves(), blue);
    EXPECT_EQ(picture.focusPolicy(), Qt::NoFocus);
    EXPECT_TRUE(picture.testAttribute(Qt::WA_TransparentForMouseEvents));
    EXPECT_THAT(picture.parts(), IsEmpty());
    EXPECT_FALSE(picture.isPressable());
    picture.press(std::nullopt);
    EXPECT_EQ(view.focusPolicy(), Qt::StrongFocus);
    EXPECT_TRUE(view.isPressable());
}

TEST_F(DisplayListViewTest, aScreenReaderFindsTextsAndLinksInTheOrderOfReading)
{
    view.showCard(VStack{}({text("Two aircraft"), half("skyvane://aircraft/a")}), blue);
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&view);
    ASSERT_EQ(spoken->childCount(), 2);
    EXPECT_EQ(spoken->child(0)->text(QAccessible::Name), "Two aircraft");
    EXPECT_EQ(spoken->child(0)->role(), QAccessible::StaticText);
    EXPECT_EQ(spoken->child(1)->role(), QAccessible::Link);
    EXPECT_EQ(spoken->child(1)->parent(), spoken);
    spoken->child(1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    spoken->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_THAT(pressed, ElementsAre("skyvane://aircraft/a", "card"));
}

TEST_F(DisplayListViewTest, insideAWindowAScreenReaderSeesNoFurtherWindow)
{
    picture.setParent(&window);
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&picture);
    EXPECT_EQ(spoken->role(), QAccessible::Client);
    EXPECT_FALSE(
        spoken->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&view)->role(), QAccessible::Window);
}

TEST_F(DisplayListViewTest, tabReachesTheWholeAndEveryLinkAndLeavesBehindTheLast)
{
    QWidget before{&window};
    view.setParent(&window);
    QWidget after{&window};
    for (QWidget* neighbour : {&before, &after})
        neighbour->setFocusPolicy(Qt::TabFocus);
    view.showCard(twoHalves(), blue);
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
    press(Qt::Key_Return);
    press(Qt::Key_Tab);
    press(Qt::Key_Enter);
    EXPECT_TRUE(view.hasFocus());
    press(Qt::Key_Tab);
    EXPECT_TRUE(after.hasFocus());
    EXPECT_THAT(pressed, ElementsAre("card", "skyvane://aircraft/a", "https://example.org/b"));
    QKeyEvent backtab{QEvent::KeyPress, Qt::Key_Backtab, Qt::ShiftModifier};
    QApplication::sendEvent(&after, &backtab);
    ASSERT_TRUE(test::waitFor([&] { return view.hasFocus(); }));
    press(Qt::Key_Return);
    EXPECT_EQ(pressed.back(), "https://example.org/b");
}

TEST_F(DisplayListViewTest, aViewThatGoesTakesItsLinksWithIt)
{
    view.showCard(twoHalves(), blue);
    send(QEvent::MouseButtonPress, {100, 150});
    view.showCard(text("Words"), blue);
    send(QEvent::MouseButtonRelease, {100, 150});
    EXPECT_THAT(pressed, IsEmpty());
    view.setFocus();
    press(Qt::Key_Return);
    EXPECT_THAT(pressed, ElementsAre("card"));
}

TEST_F(DisplayListViewTest, aTapSurvivesARefreshThatKeepsItsLink)
{
    view.showCard(twoHalves(), blue);
    send(QEvent::MouseButtonPress, {100, 150});
    view.showCard(half("https://example.org/b"), blue);
    send(QEvent::MouseButtonRelease, {100, 150});
    EXPECT_THAT(pressed, ElementsAre("https://example.org/b"));
}

} // namespace skyvane
