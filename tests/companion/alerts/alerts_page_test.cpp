#include "companion/alerts/alerts_page.h"

#include "desk/alerts/alert_choices_file.h"
#include "platform/pinned.h"
#include "platform/text/locale.h"
#include "tests/support/scratch_folder.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTimeEdit>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

namespace skyvane {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class AlertsPageTest : public testing::Test {
protected:
    AlertsPageTest()
    {
        page.resize(700, 700);
        page.show();
    }

    AlertChoices saved() const { return AlertChoicesFile::read(store.file()); }

    template <class Widget>
    Widget* withText(const QString& text) const
    {
        for (Widget* widget : page.findChildren<Widget*>()) {
            if (widget->text().remove('&') == text)
                return widget;
        }
        return nullptr;
    }
    QCheckBox* box(const QString& text) const { return withText<QCheckBox>(text); }
    QPushButton* button(const QString& text) const { return withText<QPushButton>(text); }
    QLineEdit* pattern() const { return page.findChild<QListWidget*>()->parent()->findChild<QLineEdit*>(); }

    Pinned<Locale> locale{{.numbers = "en_US", .times = "en_GB", .timeZone = "UTC"}};
    test::ScratchFolder folder;
    AlertStore store{folder.path() / "skyvane/alerts.json"};
    int samples = 0;
    AlertsPage page{store, [this] { ++samples; }};
};

} // namespace

TEST_F(AlertsPageTest, everySwitchIsOffAtFirst)
{
    const auto boxes = page.findChildren<QCheckBox*>();
    EXPECT_EQ(boxes.size(), 4);
    for (const QCheckBox* one : boxes)
        EXPECT_FALSE(one->isChecked()) << one->text().toStdString();
    EXPECT_EQ(page.findChild<QListWidget*>()->count(), 0);
    EXPECT_FALSE(std::filesystem::exists(store.file()));
}

TEST_F(AlertsPageTest, eachSwitchIsSavedAtOnce)
{
    box("an aircraft reports an emergency")->click();
    EXPECT_EQ(saved(), AlertChoices{.emergency = true});
    box("a military aircraft is in range")->click();
    box("an aircraft will pass overhead,")->click();
    page.findChild<QSpinBox*>()->setValue(60);
    EXPECT_EQ(
        saved(), (AlertChoices{.emergency = true, .military = true, .overhead = true, .elevation = 60}));
    box("an aircraft reports an emergency")->click();
    EXPECT_FALSE(saved().emergency);
    EXPECT_TRUE(withText<QLabel>("Saved.") != nullptr);
}

TEST_F(AlertsPageTest, theElevationIsAskedForOnlyWhereItMatters)
{
    EXPECT_FALSE(page.findChild<QSpinBox*>()->isEnabled());
    box("an aircraft will pass overhead,")->click();
    EXPECT_TRUE(page.findChild<QSpinBox*>()->isEnabled());
}

TEST_F(AlertsPageTest, patternsAreAddedAndRemovedByKeys)
{
    QTest::keyClicks(pattern(), " BAW* ");
    QTest::keyClick(pattern(), Qt::Key_Return);
    QTest::keyClicks(pattern(), "G-CIVW");
    QTest::keyClick(pattern(), Qt::Key_Return);
    QTest::keyClicks(pattern(), "BAW*");
    QTest::keyClick(pattern(), Qt::Key_Return);
    EXPECT_THAT(saved().watch, ElementsAre("BAW*", "G-CIVW"));
    auto* list = page.findChild<QListWidget*>();
    list->setFocus();
    list->setCurrentRow(0);
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_THAT(saved().watch, ElementsAre("G-CIVW"));
    EXPECT_FALSE(button("Add")->isEnabled());
    list->setCurrentRow(0);
    button("Remove")->click();
    EXPECT_THAT(saved().watch, IsEmpty());
    EXPECT_FALSE(button("Remove")->isEnabled());
}

TEST_F(AlertsPageTest, aFullListTakesNoMore)
{
    AlertChoices full;
    full.watch.assign(200, "A");
    store.choose(full);
    QTest::keyClicks(pattern(), "B");
    EXPECT_FALSE(button("Add")->isEnabled());
    QTest::keyClick(pattern(), Qt::Key_Return);
    EXPECT_EQ(saved().watch.size(), 200U);
}

TEST_F(AlertsPageTest, quietHoursAreKeptWithTheirTimes)
{
    const auto times = page.findChildren<QTimeEdit*>();
    ASSERT_EQ(times.size(), 2);
    EXPECT_FALSE(times[0]->isEnabled());
    EXPECT_EQ(times[0]->text(), "22:00");
    box("Quiet from")->click();
    times[0]->setTime(QTime{23, 15});
    EXPECT_TRUE(saved().isQuiet);
    EXPECT_EQ(saved().quietHours, (QuietHours{.from = QTime{23, 15}, .until = QTime{7, 0}}));
}

TEST_F(AlertsPageTest, whatOthersChooseIsShown)
{
    store.choose({.military = true, .elevation = 70, .watch = {"RCH*"}});
    EXPECT_TRUE(box("a military aircraft is in range")->isChecked());
    EXPECT_EQ(page.findChild<QSpinBox*>()->value(), 70);
    EXPECT_EQ(page.findChild<QListWidget*>()->item(0)->text(), "RCH*");
}

TEST_F(AlertsPageTest, aButtonShowsASample)
{
    button("Show a Sample")->click();
    EXPECT_EQ(samples, 1);
    EXPECT_EQ(saved(), AlertChoices{});
}

TEST_F(AlertsPageTest, whatCannotBeSavedIsSaid)
{
    std::ofstream{folder.path() / "skyvane"} << "a file where a folder should be";
    box("a military aircraft is in range")->click();
    EXPECT_NE(withText<QLabel>(QString::fromStdString(
                  "Your choices could not be saved. Nothing can be written to this folder: "
                  + (folder.path() / "skyvane").string())),
        nullptr);
}

TEST_F(AlertsPageTest, everyFieldHasANameForAScreenReader)
{
    for (const QWidget* field : page.findChildren<QWidget*>()) {
        const bool isField = qobject_cast<const QAbstractSpinBox*>(field) != nullptr
            || qobject_cast<const QListWidget*>(field) != nullptr;
        if (isField || field == pattern())
            EXPECT_FALSE(field->accessibleName().isEmpty()) << field->metaObject()->className();
    }
}

} // namespace skyvane
