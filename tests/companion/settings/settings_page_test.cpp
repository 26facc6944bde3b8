#include "companion/map/earth_map.h"
#include "companion/settings/widget_previews.h"
#include "tests/companion/settings/settings_page_fixture.h"

#include <QAccessible>
#include <QColorDialog>
#include <QMessageBox>
#include <QSlider>

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

TEST_F(SettingsPageTest, aScreenReaderFindsColoursAndUnitsToChooseOneOf)
{
    SharedState::write(london());
    open();
    for (const char* name : {"Peach", "Kilometres"})
        EXPECT_EQ(QAccessible::queryAccessibleInterface(&button(name))->role(), QAccessible::RadioButton)
            << name;
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
