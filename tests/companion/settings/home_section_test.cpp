#include "companion/map/earth_map.h"
#include "tests/companion/settings/settings_page_fixture.h"

#include <QSlider>
#include <QTest>

namespace skyvane {

namespace {

using test::london;

class HomeSectionTest : public test::SettingsPageFixture { };

} // namespace

TEST_F(HomeSectionTest, aPlaceIsChosenByNameAndGivesTheHomeItsOwn)
{
    open();
    type(place(), "li");
    ASSERT_TRUE(test::waitFor([&] { return page->findChild<PlaceField*>()->offered().rowCount() == 2; }));
    type(place(), "lisb");
    press(place(), Qt::Key_Return);
    EXPECT_TRUE(isWritten({.home = {.latitude = 38.71667, .longitude = -9.13333, .label = "Lisbon"},
        .radiusNM = 25,
        .distanceUnit = "mi"}));
    EXPECT_EQ(place().text(), "Lisbon, Portugal");
    EXPECT_EQ(position().text(), "38.71667, -9.13333");
    EXPECT_EQ(named("Name").text(), "Lisbon");
    EXPECT_FALSE(says("Welcome!"));
    EXPECT_TRUE(test::waitFor([&] { return changes == 1; }));
}

TEST_F(HomeSectionTest, theSecondOfThePlacesOfferedIsChosenWithTheArrow)
{
    open();
    type(place(), "li");
    ASSERT_TRUE(test::waitFor([&] { return page->findChild<PlaceField*>()->offered().rowCount() == 2; }));
    ASSERT_TRUE(test::waitFor([&] { return QApplication::activePopupWidget() != nullptr; }));
    QWidget* list = QApplication::activePopupWidget();
    press(*list, Qt::Key_Down);
    press(*list, Qt::Key_Return);
    EXPECT_TRUE(test::waitFor([&] { return SharedState::read() && changes == 1; }));
    EXPECT_NE(place().text(), page->findChild<PlaceField*>()->offered().index(0, 0).data().toString());
    EXPECT_EQ(place().text(), page->findChild<PlaceField*>()->offered().index(1, 0).data().toString());
}

TEST_F(HomeSectionTest, aPlaceThatNobodyKnowsIsSaidSo)
{
    open();
    type(place(), "xyzzy");
    EXPECT_TRUE(test::waitFor([&] { return says("No place of this name"); }));
    press(place(), Qt::Key_Return);
    EXPECT_TRUE(staysUnwritten(std::nullopt));
}

TEST_F(HomeSectionTest, aPositionIsTypedAndWrittenWithEnter)
{
    open();
    type(position(), "51°28′39″N 0°27′41″W");
    press(position(), Qt::Key_Return);
    ASSERT_TRUE(test::waitFor([&] { return SharedState::read().has_value(); }));
    EXPECT_NEAR(SharedState::read()->home.latitude, 51.4775, 1e-6);
    EXPECT_EQ(SharedState::read()->home.label, "Home");
    EXPECT_EQ(position().text(), "51°28′39″N 0°27′41″W");
    EXPECT_TRUE(position().problem().isEmpty());
}

TEST_F(HomeSectionTest, anUnreadablePositionIsMarkedAndNothingOfItIsWritten)
{
    SharedState::write(london());
    open();
    type(position(), "45.5, 7.5x");
    EXPECT_TRUE(staysUnwritten(london()));
    press(position(), Qt::Key_Return);
    EXPECT_TRUE(position().problem().startsWith("This is no position."));
    EXPECT_EQ(position().accessibleDescription(), position().problem());
    EXPECT_TRUE(says("This is no position."));
    button("Kilometres").click();
    SharedState::Config expected = london();
    expected.distanceUnit = "km";
    EXPECT_TRUE(isWritten(expected));
    EXPECT_EQ(position().text(), "45.5, 7.5x");
    type(position(), "95, 0");
    press(position(), Qt::Key_Return);
    EXPECT_TRUE(says("Latitude goes from"));
    EXPECT_TRUE(staysUnwritten(expected));
    type(position(), "45.5, 7.5");
    EXPECT_TRUE(position().problem().isEmpty());
    press(position(), Qt::Key_Return);
    expected.home.latitude = 45.5;
    expected.home.longitude = 7.5;
    EXPECT_TRUE(isWritten(expected));
}

TEST_F(HomeSectionTest, aHomeWithoutANameIsMarkedAndNotWritten)
{
    SharedState::write(london());
    open();
    type(named("Name"), "  ");
    EXPECT_EQ(named("Name").problem(), "Give your home a name.");
    EXPECT_TRUE(staysUnwritten(london()));
    type(named("Name"), " Zuhause ");
    SharedState::Config expected = london();
    expected.home.label = "Zuhause";
    EXPECT_TRUE(isWritten(expected));
}

TEST_F(HomeSectionTest, aPositionTakesThePlaceAndItsNameAlong)
{
    open();
    type(place(), "lisb");
    ASSERT_TRUE(test::waitFor([&] { return page->findChild<PlaceField*>()->offered().rowCount() == 1; }));
    press(place(), Qt::Key_Return);
    ASSERT_EQ(place().text(), "Lisbon, Portugal");
    type(position(), "-12.03, -77.03");
    EXPECT_TRUE(place().text().isEmpty());
    EXPECT_TRUE(says("3 mi south-west of Lima"));
    EXPECT_EQ(named("Name").text(), "Lima");
    press(position(), Qt::Key_Return);
    EXPECT_TRUE(isWritten({.home = {.latitude = -12.03, .longitude = -77.03, .label = "Lima"},
        .radiusNM = 25,
        .distanceUnit = "mi"}));
    type(position(), "0, 0");
    EXPECT_EQ(named("Name").text(), "Home") << "nowhere";
    type(position(), "38.71667, -9.13333");
    EXPECT_EQ(named("Name").text(), "Lisbon");
    EXPECT_TRUE(says("In Lisbon"));
}

TEST_F(HomeSectionTest, aNameOfOnesOwnStaysWhereverHomeGoes)
{
    open();
    type(position(), "38.71667, -9.13333");
    ASSERT_TRUE(test::waitFor([&] { return named("Name").text() == "Lisbon"; }));
    type(named("Name"), "Casa");
    type(position(), "-12, -77");
    press(position(), Qt::Key_Return);
    EXPECT_TRUE(isWritten({.home = {.latitude = -12, .longitude = -77, .label = "Casa"},
        .radiusNM = 25,
        .distanceUnit = "mi"}));
}

TEST_F(HomeSectionTest, aPositionThatTurnsOutToBeNoneLeavesHomeWhereItWas)
{
    SharedState::Config lisbon = london();
    lisbon.home = {.latitude = 38.71667, .longitude = -9.13333, .label = "Lisbon"};
    SharedState::write(lisbon);
    open();
    type(position(), "-12, -77");
    ASSERT_TRUE(test::waitFor([&] { return named("Name").text() == "Lima"; }));
    type(position(), "-12, -77x");
    EXPECT_EQ(named("Name").text(), "Lisbon");
    EXPECT_FALSE(says("Lima"));
    EXPECT_TRUE(staysUnwritten(lisbon));
}

TEST_F(HomeSectionTest, aPositionOrALinkIsTakenInThePlaceLineToo)
{
    open();
    const auto& offered = page->findChild<PlaceField*>()->offered();
    type(place(), "https://www.openstreetmap.org/#map=15/38.71667/-9.13333");
    ASSERT_EQ(offered.rowCount(), 1);
    EXPECT_EQ(offered.index(0, 0).data().toString(), "38.71667, -9.13333");
    press(place(), Qt::Key_Return);
    EXPECT_TRUE(isWritten({.home = {.latitude = 38.71667, .longitude = -9.13333, .label = "Lisbon"},
        .radiusNM = 25,
        .distanceUnit = "mi"}));
    EXPECT_TRUE(place().text().isEmpty());
    EXPECT_TRUE(says("In Lisbon"));
}

TEST_F(HomeSectionTest, aShortPlusCodeIsAtHomeInTheTownBehindIt)
{
    open();
    type(place(), "PV88+MM Lisbon");
    const auto& offered = page->findChild<PlaceField*>()->offered();
    ASSERT_TRUE(test::waitFor([&] { return offered.rowCount() == 1; }));
    EXPECT_EQ(offered.index(0, 0).data().toString(), "PV88+MM Lisbon, Portugal");
    press(place(), Qt::Key_Return);
    ASSERT_TRUE(test::waitFor([&] { return SharedState::read().has_value(); }));
    EXPECT_NEAR(SharedState::read()->home.latitude, 38.71667, 0.03);
    EXPECT_NEAR(SharedState::read()->home.longitude, -9.13333, 0.03);
    EXPECT_EQ(SharedState::read()->home.label, "Lisbon");
    type(position(), "PV88+MM");
    press(position(), Qt::Key_Return);
    EXPECT_TRUE(says("lacks its beginning"));
}

TEST_F(HomeSectionTest, aNameThatWasNotChosenGoesWhenItsLineIsLeft)
{
    open();
    type(place(), "lisb");
    ASSERT_TRUE(test::waitFor([&] { return page->findChild<PlaceField*>()->offered().rowCount() == 1; }));
    press(place(), Qt::Key_Return);
    ASSERT_EQ(place().text(), "Lisbon, Portugal");
    type(place(), "xyz");
    position().setFocus();
    EXPECT_EQ(place().text(), "Lisbon, Portugal");
    EXPECT_FALSE(says("No place of this name"));
}

TEST_F(HomeSectionTest, aClickOnTheMapPutsHomeThere)
{
    SharedState::write(london());
    open();
    auto* map = page->findChild<EarthMap*>();
    const QPointF there = map->frame().place(Coordinate{.latitude = 51.7, .longitude = 0.1});
    ASSERT_TRUE(map->rect().contains(there.toPoint()));
    QTest::mouseClick(map, Qt::LeftButton, {}, there.toPoint());
    ASSERT_TRUE(test::waitFor([&] { return SharedState::read()->home.latitude != 51.5; }));
    EXPECT_NEAR(SharedState::read()->home.latitude, 51.7, 0.01);
    EXPECT_NEAR(SharedState::read()->home.longitude, 0.1, 0.01);
    EXPECT_TRUE(position().text().startsWith("51."));
    button("Undo").click();
    EXPECT_TRUE(isWritten(london()));
}

TEST_F(HomeSectionTest, theMapShowsHomeWithItsRadius)
{
    SharedState::write(london());
    open();
    const auto* map = page->findChild<EarthMap*>();
    const double before = map->frame().pointsPerNM();
    EXPECT_NEAR(
        map->frame().place(Coordinate{.latitude = 51.5, .longitude = -0.12}).x(), map->width() / 2.0, 1);
    slider().setValue(100);
    EXPECT_LT(map->frame().pointsPerNM(), before / 2);
}

} // namespace skyvane
