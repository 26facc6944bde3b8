#include "companion/map/earth_map.h"
#include "companion/settings/widget_previews.h"
#include "tests/companion/position/fake_location_service.h"
#include "tests/companion/settings/settings_page_fixture.h"

#include <QAccessible>
#include <QColorDialog>
#include <QMessageBox>
#include <QSlider>
#include <QTest>

#include <fstream>

namespace skyvane {

namespace {

using test::london;

class SettingsPageTest : public test::SettingsPageFixture {
protected:
    void answerQuestion(const QString& buttonText)
    {
        button("Forget My Home…").click();
        const auto questions = page->findChildren<QMessageBox*>();
        ASSERT_EQ(questions.size(), 1);
        for (QAbstractButton* answer : questions.front()->buttons()) {
            if (answer->text().remove('&') == buttonText)
                answer->click();
        }
        ASSERT_TRUE(test::waitFor([&] { return page->findChildren<QMessageBox*>().empty(); }));
    }

    QImage previews()
    {
        QApplication::processEvents();
        return page->grab(QRect{page->width() - 400, 0, 400, page->height()}).toImage();
    }
};

} // namespace

TEST_F(SettingsPageTest, withoutAHomeItSaysSoKindlyAndWritesNothing)
{
    open();
    EXPECT_TRUE(says("Welcome!"));
    EXPECT_TRUE(says("25") || radius().text() == "25");
    EXPECT_FALSE(button("Forget My Home…").isEnabled());
    button("Kilometres").click();
    EXPECT_TRUE(staysUnwritten(std::nullopt));
    EXPECT_EQ(changes, 0);
}

TEST_F(SettingsPageTest, aPlaceIsChosenByNameAndGivesTheHomeItsOwn)
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

TEST_F(SettingsPageTest, theSecondOfThePlacesOfferedIsChosenWithTheArrow)
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

TEST_F(SettingsPageTest, aPlaceThatNobodyKnowsIsSaidSo)
{
    open();
    type(place(), "xyzzy");
    EXPECT_TRUE(test::waitFor([&] { return says("No place of this name"); }));
    press(place(), Qt::Key_Return);
    EXPECT_TRUE(staysUnwritten(std::nullopt));
}

TEST_F(SettingsPageTest, aPositionIsTypedAndWrittenWithEnter)
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

TEST_F(SettingsPageTest, anUnreadablePositionIsMarkedAndNothingOfItIsWritten)
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

TEST_F(SettingsPageTest, aRadiusBeyondItsRangeIsMarkedAndNothingOfItIsWritten)
{
    SharedState::write(london());
    open();
    for (const char* text : {"300", "0", "", "abc"}) {
        type(radius(), text);
        press(radius(), Qt::Key_Return);
        EXPECT_FALSE(radius().problem().isEmpty()) << text;
        EXPECT_TRUE(says("from 1 to 250")) << text;
        EXPECT_TRUE(staysUnwritten(london())) << text;
    }
    type(radius(), "12.5");
    SharedState::Config expected = london();
    expected.radiusNM = 12.5;
    EXPECT_TRUE(isWritten(expected));
    EXPECT_TRUE(radius().problem().isEmpty());
    EXPECT_TRUE(says("14.4 mi"));
}

TEST_F(SettingsPageTest, aHomeWithoutANameIsMarkedAndNotWritten)
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

TEST_F(SettingsPageTest, aDraggedSliderWritesOnce)
{
    SharedState::write(london());
    open();
    slider().setSliderDown(true);
    for (const int radiusNM : {30, 60, 90}) {
        slider().setValue(radiusNM);
        EXPECT_EQ(radius().text(), QString::number(radiusNM));
        EXPECT_TRUE(staysUnwritten(london()));
    }
    slider().setSliderDown(false);
    SharedState::Config expected = london();
    expected.radiusNM = 90;
    EXPECT_TRUE(isWritten(expected));
    EXPECT_TRUE(test::waitFor([&] { return changes == 1; }));
}

TEST_F(SettingsPageTest, theWidgetsShowUnitAndColourAtOnce)
{
    SharedState::write(london());
    open();
    const QImage before = previews();
    button("Kilometres").click();
    const QImage inKilometres = previews();
    EXPECT_NE(inKilometres, before);
    button("Peach").click();
    EXPECT_NE(previews(), inKilometres);
    SharedState::Config expected = london();
    expected.distanceUnit = "km";
    expected.widgetColorHex = "#ffcca6";
    EXPECT_TRUE(isWritten(expected));
    button("Back to Standard").click();
    EXPECT_EQ(previews(), inKilometres);
    expected.widgetColorHex.reset();
    EXPECT_TRUE(isWritten(expected));
}

TEST_F(SettingsPageTest, anyColourCanBeChosenAndACancelledChoiceIsNone)
{
    SharedState::write(london());
    open();
    SharedState::Config expected = london();
    for (const bool isTaken : {true, false}) {
        button("Other Colour…").click();
        auto* dialog = page->findChild<QColorDialog*>();
        ASSERT_NE(dialog, nullptr);
        dialog->setCurrentColor(isTaken ? QColor{0x12, 0x34, 0x56} : QColor{0x65, 0x43, 0x21});
        EXPECT_TRUE(staysUnwritten(SharedState::read()));
        isTaken ? dialog->accept() : dialog->reject();
        expected.widgetColorHex = "#123456";
        EXPECT_TRUE(isWritten(expected));
        EXPECT_TRUE(button("Your own colour").isChecked());
        ASSERT_TRUE(test::waitFor([&] { return page->findChild<QColorDialog*>() == nullptr; }));
    }
    EXPECT_TRUE(staysUnwritten(expected));
}

TEST_F(SettingsPageTest, aColourThatIsHardToReadIsSaidSoBelowTheWidgets)
{
    SharedState::Config config = london();
    SharedState::write(config);
    open();
    EXPECT_FALSE(says("Hard to read"));
    for (const char* hex : {"#0000ff", "#800000"}) {
        config.widgetColorHex = hex;
        SharedState::write(config);
        EXPECT_TRUE(test::waitFor([&] { return says("Hard to read"); })) << hex;
        auto* words = page->findChild<WidgetPreviews*>()->findChild<QLabel*>();
        EXPECT_EQ(QAccessible::queryAccessibleInterface(words)->text(QAccessible::Name),
            "Hard to read: small texts need a lighter colour.");
        button("Peach").click();
        EXPECT_FALSE(says("Hard to read"));
        config.widgetColorHex = "#ffcca6";
        EXPECT_TRUE(isWritten(config));
    }
}

TEST_F(SettingsPageTest, whatOthersWriteIsShown)
{
    SharedState::write(london());
    open();
    const SharedState::Config other{.home = {.latitude = 1, .longitude = 2, .label = "Away"},
        .radiusNM = 50,
        .distanceUnit = "nm",
        .widgetColorHex = "#ffcca6"};
    SharedState::write(other);
    EXPECT_TRUE(test::waitFor([&] { return named("Name").text() == "Away"; }));
    EXPECT_EQ(position().text(), "1, 2");
    EXPECT_EQ(radius().text(), "50");
    EXPECT_EQ(slider().value(), 50);
    EXPECT_TRUE(button("Nautical miles").isChecked());
    EXPECT_TRUE(button("Peach").isChecked());
    EXPECT_EQ(changes, 0);
    EXPECT_TRUE(staysUnwritten(other));
}

TEST_F(SettingsPageTest, aFolderThatCannotBeWrittenIsSaidSo)
{
    std::ofstream{scratch.path() / "Library"} << "a file where a folder should be";
    open();
    type(position(), "51.5, -0.12");
    press(position(), Qt::Key_Return);
    EXPECT_TRUE(test::waitFor([&] { return says("could not be saved"); }));
    EXPECT_EQ(changes, 0);
}

TEST_F(SettingsPageTest, theHomeIsForgottenAfterOneQuestion)
{
    SharedState::write(london());
    open();
    answerQuestion("Cancel");
    EXPECT_TRUE(staysUnwritten(london()));
    answerQuestion("Forget");
    EXPECT_EQ(SharedState::read(), std::nullopt);
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(says("Welcome!"));
    EXPECT_TRUE(position().text().isEmpty());
    EXPECT_EQ(named("Name").text(), "Home");
    EXPECT_TRUE(staysUnwritten(std::nullopt));
}

TEST_F(SettingsPageTest, theSystemIsAskedWhereItIs)
{
    test::FakeLocationService fake{bus.address()};
    fake.fix = Coordinate{.latitude = 38.716671234, .longitude = -9.133331234};
    open();
    button("Locate Me").click();
    EXPECT_TRUE(says("Asking where you are"));
    EXPECT_TRUE(isWritten({.home = {.latitude = 38.71667, .longitude = -9.13333, .label = "Lisbon"},
        .radiusNM = 25,
        .distanceUnit = "mi"}));
    EXPECT_EQ(position().text(), "38.71667, -9.13333");
    EXPECT_TRUE(says("Found by the location service of your system, to about 70 ft."));
    EXPECT_TRUE(says("In Lisbon"));
}

TEST_F(SettingsPageTest, whereTheSystemTakesOneToBeCanBeUndone)
{
    SharedState::write(london());
    test::FakeLocationService fake{bus.address()};
    fake.fix = Coordinate{.latitude = 38.71667, .longitude = -9.13333};
    open();
    EXPECT_FALSE(button("Undo").isVisible());
    button("Locate Me").click();
    ASSERT_TRUE(test::waitFor(
        [&] { return SharedState::read()->home.label == "Lisbon" || button("Undo").isVisible(); }));
    ASSERT_TRUE(test::waitFor([&] { return SharedState::read()->home.latitude == 38.71667; }));
    button("Undo").click();
    EXPECT_TRUE(isWritten(london()));
    EXPECT_EQ(position().text(), "51.5, -0.12");
    EXPECT_EQ(named("Name").text(), "London");
    EXPECT_FALSE(button("Undo").isVisible());
    EXPECT_FALSE(says("Found by"));
    EXPECT_FALSE(says("In Lisbon"));
}

TEST_F(SettingsPageTest, theFirstHomeIsUndoneToNone)
{
    test::FakeLocationService fake{bus.address()};
    fake.fix = Coordinate{.latitude = 38.71667, .longitude = -9.13333};
    open();
    button("Locate Me").click();
    ASSERT_TRUE(test::waitFor([&] { return SharedState::read().has_value(); }));
    button("Undo").click();
    EXPECT_TRUE(test::waitFor([&] { return !SharedState::read(); }));
    EXPECT_TRUE(position().text().isEmpty());
    EXPECT_TRUE(says("Welcome!"));
    EXPECT_TRUE(staysUnwritten(std::nullopt));
}

TEST_F(SettingsPageTest, aCoarseFixIsSaidWhileABetterOneIsWaitedFor)
{
    test::FakeLocationService fake{bus.address()};
    fake.fix = Coordinate{.latitude = 50.1, .longitude = 8.6};
    fake.accuracy = 25000;
    open();
    button("Locate Me").click();
    EXPECT_TRUE(test::waitFor([&] { return says("So far to about 16 mi."); }));
    EXPECT_TRUE(staysUnwritten(std::nullopt));
    button("Stop Asking").click();
    EXPECT_FALSE(says("So far"));
    EXPECT_TRUE(staysUnwritten(std::nullopt));
}

TEST_F(SettingsPageTest, aPositionTakesThePlaceAndItsNameAlong)
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

TEST_F(SettingsPageTest, aNameOfOnesOwnStaysWhereverHomeGoes)
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

TEST_F(SettingsPageTest, aPositionThatTurnsOutToBeNoneLeavesHomeWhereItWas)
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

TEST_F(SettingsPageTest, aPositionOrALinkIsTakenInThePlaceLineToo)
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

TEST_F(SettingsPageTest, aShortPlusCodeIsAtHomeInTheTownBehindIt)
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

TEST_F(SettingsPageTest, aNameThatWasNotChosenGoesWhenItsLineIsLeft)
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

TEST_F(SettingsPageTest, whatTheServiceFailedAtIsForgottenWithTheNextChoice)
{
    open();
    button("Locate Me").click();
    ASSERT_TRUE(test::waitFor([&] { return says("is not running"); }));
    type(place(), "lisb");
    ASSERT_TRUE(test::waitFor([&] { return page->findChild<PlaceField*>()->offered().rowCount() == 1; }));
    press(place(), Qt::Key_Return);
    EXPECT_FALSE(says("is not running"));
    EXPECT_FALSE(says("Asking where you are"));
}

TEST_F(SettingsPageTest, whyTheSystemDidNotSayIsSaidAtTheField)
{
    open();
    button("Locate Me").click();
    EXPECT_TRUE(test::waitFor([&] { return says("is not running"); }));
    test::FakeLocationService fake{bus.address()};
    fake.refusal = "org.freedesktop.DBus.Error.AccessDenied";
    button("Locate Me").click();
    EXPECT_TRUE(test::waitFor([&] { return says("does not let Skyvane know"); }));
    EXPECT_EQ(position().accessibleDescription(), position().problem());
}

TEST_F(SettingsPageTest, whatIsChosenIsWrittenWhenThePageGoes)
{
    SharedState::write(london());
    open();
    slider().setSliderDown(true);
    slider().setValue(40);
    page->hide();
    EXPECT_EQ(SharedState::read()->radiusNM, 40);
}

TEST_F(SettingsPageTest, everyControlHasANameForAScreenReader)
{
    open();
    std::vector<QWidget*> unnamed;
    for (auto* widget : page->findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&*page) || widget->focusPolicy() == Qt::NoFocus
            || widget->focusProxy() != nullptr)
            continue;
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
        if (accessible->text(QAccessible::Name).isEmpty())
            unnamed.push_back(widget);
    }
    EXPECT_THAT(unnamed, testing::IsEmpty())
        << (unnamed.empty() ? "" : unnamed.front()->metaObject()->className());
}

TEST_F(SettingsPageTest, aClickOnTheMapPutsHomeThere)
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

TEST_F(SettingsPageTest, theMapShowsHomeWithItsRadius)
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

TEST_F(SettingsPageTest, theMeasuresOfTheCompanionAreItsOwn)
{
    SharedState::write(london());
    open();
    button("Metres, km/h").click();
    EXPECT_EQ(preferences.measures(), Measures::metric);
    EXPECT_EQ(changes, 0) << "the widgets' file stays as it is";
    EXPECT_EQ(SharedState::read(), london());
    page.reset();
    open();
    EXPECT_TRUE(button("Metres, km/h").isChecked());
}

TEST_F(SettingsPageTest, inASmallWindowEveryFieldIsWideEnoughToRead)
{
    SharedState::write(london());
    open();
    page->resize(640, 400);
    ASSERT_TRUE(test::waitFor([&] { return page->width() == 640; }));
    for (const auto* line : std::initializer_list<const QLineEdit*>{&place(), &position(), &named("Name")})
        EXPECT_GE(line->width(), line->fontMetrics().horizontalAdvance("-33.868820, 151.209290"))
            << line->accessibleName().toStdString();
    const auto* map = page->findChild<EarthMap*>();
    EXPECT_LE(map->mapTo(page.get(), QPoint{map->width(), 0}).x(), 640);
}

} // namespace skyvane
