#include "companion/alerts/alert_store.h"
#include "companion/host_switch/host_control.h"
#include "companion/look/elided_label.h"
#include "companion/look/notice_bar.h"
#include "companion/settings/widget_previews.h"
#include "companion/window/header_bar.h"
#include "companion/window/main_window.h"
#include "companion/window/shortcuts_dialog.h"
#include "tests/companion/companion_stage.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>
#include <QTest>

#include <gmock/gmock.h>

namespace skyvane {

namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;

class MainWindowTest : public testing::Test {
protected:
    MainWindowTest() { stage.server.answer(test::feedPath, {.body = test::threeAircraft}); }

    std::unique_ptr<MainWindow> window()
    {
        return std::make_unique<MainWindow>(WindowParts{
            .feed = feed,
            .lookups = lookups,
            .host = host,
            .alerts = alerts,
            .fonts = stage.fonts,
            .systemBus = bus,
            .open = [](const QUrl&) {},
            .showSampleAlert = [this] { ++samples; },
            .autostart = {},
            .memory = stage.scratch.path() / "config/skyvane/companion.ini",
        });
    }

    /// Whether nothing is asked for as long as several refreshes would take.
    bool isCalm() const
    {
        const std::size_t before = stage.server.requests().size();
        QElapsedTimer clock;
        clock.start();
        return test::waitFor([&] { return clock.hasExpired(900); })
            && stage.server.requests().size() == before;
    }

    static const NoticeBar* visibleNotice(const MainWindow& window)
    {
        for (const NoticeBar* bar : window.findChildren<NoticeBar*>()) {
            if (bar->isVisible())
                return bar;
        }
        return nullptr;
    }

    test::CompanionStage stage;
    SkyFeed feed{stage.errands, stage.pacer.transport(), 300ms};
    Lookups lookups{stage.errands, stage.decode, stage.pacer.transport()};
    QDBusConnection bus{"none"};
    HostControl host{bus, "/nowhere/skyvane-host"};
    AlertStore alerts{stage.scratch.path() / "config/skyvane/alerts.json"};
    int samples = 0;
};

} // namespace

TEST_F(MainWindowTest, aWindowThatNobodySeesAsksNobody)
{
    const auto one = window();
    one->show();
    EXPECT_TRUE(test::waitFor([&] { return stage.asked(test::feedPath) >= 2; }));
    one->showMinimized();
    EXPECT_TRUE(test::waitFor([&] { return !feed.report().isAsking; }));
    EXPECT_TRUE(isCalm());
    const auto asked = stage.asked(test::feedPath);
    one->showNormal();
    EXPECT_TRUE(test::waitFor([&] { return stage.asked(test::feedPath) > asked; }));
    one->hide();
    EXPECT_TRUE(test::waitFor([&] { return !feed.report().isAsking; }));
    EXPECT_TRUE(isCalm());
}

TEST_F(MainWindowTest, aLinkThatLeadsNowhereIsExplainedUntilItIsDismissed)
{
    const auto one = window();
    one->show();
    one->follow(IncomingLink::Problem::unknownPlace);
    const NoticeBar* notice = visibleNotice(*one);
    ASSERT_NE(notice, nullptr);
    EXPECT_EQ(notice->text().toStdString(), IncomingLink::description(IncomingLink::Problem::unknownPlace));
    notice->findChild<QPushButton*>()->click();
    EXPECT_EQ(visibleNotice(*one), nullptr);
    one->follow(IncomingLink::Problem::tooLong);
    one->follow(IncomingLink::Sky{});
    EXPECT_EQ(visibleNotice(*one), nullptr);
}

TEST_F(MainWindowTest, backLeadsToWhereOneCameFrom)
{
    const auto one = window();
    one->show();
    EXPECT_TRUE(test::waitFor([&] { return feed.report().hasAnswer; }));
    const auto title = [&] { return one->windowTitle().toStdString(); };
    auto* back = one->actions().front();
    EXPECT_FALSE(back->isEnabled());
    one->showAircraft("a1b2c3");
    EXPECT_THAT(title(), HasSubstr("UAL123"));
    one->showSettings();
    EXPECT_THAT(title(), HasSubstr("Settings"));
    back->trigger();
    EXPECT_THAT(title(), HasSubstr("UAL123"));
    back->trigger();
    EXPECT_THAT(title(), HasSubstr("The sky over Home"));
    EXPECT_FALSE(back->isEnabled());
}

TEST_F(MainWindowTest, tellMeWhenIsAPageFromWhichOneComesBack)
{
    const auto one = window();
    one->show();
    EXPECT_TRUE(test::waitFor([&] { return feed.report().hasAnswer; }));
    const auto title = [&] { return one->windowTitle().toStdString(); };
    auto* back = one->actions().front();
    one->showAircraft("a1b2c3");
    one->showAlerts();
    EXPECT_THAT(title(), HasSubstr("Tell me when…"));
    one->showSettings();
    back->trigger();
    EXPECT_THAT(title(), HasSubstr("UAL123"));
}

TEST_F(MainWindowTest, theListHasTheFocusAsSoonAsItIsThere)
{
    const auto one = window();
    one->show();
    one->activateWindow();
    EXPECT_TRUE(test::waitFor([&] { return one->focusWidget() == one->findChild<QTableView*>(); }));
}

TEST_F(MainWindowTest, escapeEmptiesTheFilterThenLeavesItAndStaysOnThePage)
{
    const auto one = window();
    one->show();
    one->activateWindow();
    ASSERT_TRUE(test::waitFor([&] { return one->focusWidget() == one->findChild<QTableView*>(); }));
    ASSERT_TRUE(test::waitFor([&] { return QApplication::activeWindow() == one.get(); }));
    QTest::keyClick(one.get(), Qt::Key_F, Qt::ControlModifier);
    auto* filter = one->findChild<QLineEdit*>();
    ASSERT_TRUE(test::waitFor([&] { return filter->hasFocus(); }));
    QTest::keyClicks(filter, "united");
    QTest::keyClick(filter, Qt::Key_Escape);
    EXPECT_EQ(filter->text(), "");
    EXPECT_TRUE(filter->hasFocus());
    QTest::keyClick(filter, Qt::Key_Escape);
    EXPECT_EQ(one->focusWidget(), one->findChild<QTableView*>());
}

TEST_F(MainWindowTest, escapeLeavesAFieldOfTheSettingsThenTheSettings)
{
    const auto one = window();
    one->show();
    one->activateWindow();
    one->showSettings();
    ASSERT_TRUE(test::waitFor([&] { return QApplication::activeWindow() == one.get(); }));
    const auto fields = one->findChildren<QLineEdit*>();
    const auto position = std::ranges::find(fields, "Position", &QLineEdit::accessibleName);
    ASSERT_NE(position, fields.end());
    (*position)->setFocus();
    QTest::keyClick(*position, Qt::Key_Escape);
    EXPECT_FALSE((*position)->hasFocus());
    EXPECT_THAT(one->windowTitle().toStdString(), HasSubstr("Settings"));
    QTest::keyClick(one.get(), Qt::Key_Escape);
    EXPECT_THAT(one->windowTitle().toStdString(), HasSubstr("The sky over Home"));
}

TEST_F(MainWindowTest, theKeysAreListedByAKey)
{
    const auto one = window();
    one->show();
    one->activateWindow();
    ASSERT_TRUE(test::waitFor([&] { return QApplication::activeWindow() == one.get(); }));
    QTest::keyClick(one.get(), Qt::Key_F1);
    const auto* list = one->findChild<ShortcutsDialog*>();
    ASSERT_NE(list, nullptr);
    EXPECT_TRUE(list->isVisible());
    std::vector<std::string> said;
    for (const QLabel* label : list->findChildren<QLabel*>())
        said.push_back(label->text().toStdString());
    for (const QAction* action : one->actions()) {
        for (const QKeySequence& key : action->shortcuts())
            EXPECT_THAT(
                said, testing::Contains(HasSubstr(key.toString(QKeySequence::NativeText).toStdString())));
    }
    EXPECT_THAT(said, testing::IsSupersetOf({"Ctrl+C", "Filter", "Ctrl+F", "Settings", "Ctrl+,"}));
}

TEST_F(MainWindowTest, aScreenReaderMeetsAFrameWithNamedControls)
{
    const auto one = window();
    one->show();
    EXPECT_TRUE(test::waitFor([&] { return feed.report().hasAnswer; }));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(one.get())->role(), QAccessible::Window);
    one->findChild<QLineEdit*>()->setText("united");
    for (QAbstractButton* button : one->findChildren<QAbstractButton*>()) {
        if (button->isVisible())
            EXPECT_NE(QAccessible::queryAccessibleInterface(button)->text(QAccessible::Name), "")
                << button->metaObject()->className();
    }
}

TEST_F(MainWindowTest, aLongNameOfHomeIsShortenedAndStaysInTheToolTip)
{
    const std::string name(200, 'W');
    SharedState::write({.home = {.latitude = 51.5, .longitude = -0.12, .label = name}, .radiusNM = 25});
    feed.reload();
    const auto one = window();
    one->resize(640, 480);
    one->show();
    EXPECT_EQ(one->size(), QSize(640, 480));
    const auto* title = one->findChild<HeaderBar*>()->findChild<ElidedLabel*>();
    EXPECT_LE(title->mapTo(one.get(), title->rect().topRight()).x(), 640);
    EXPECT_TRUE(title->text().endsWith("…"));
    EXPECT_EQ(title->toolTip().toStdString(), "The sky over " + name);
    EXPECT_EQ(title->accessibleName(), title->toolTip());
}

TEST_F(MainWindowTest, aClosedWindowRemembersItsPlace)
{
    auto one = window();
    one->resize(673, 511);
    one->show();
    one->close();
    one = window();
    EXPECT_EQ(one->size(), QSize(673, 511));
}

TEST_F(MainWindowTest, theWindowIsAllOnTheScreen)
{
    auto one = window();
    const QRect screen = one->screen()->availableGeometry();
    ASSERT_LT(screen.width(), 1120) << "a screen on which the first size has no room";
    EXPECT_LE(one->width(), screen.width());
    EXPECT_LE(one->height(), screen.height());
    one->setGeometry(screen.x() + 200, screen.y() + 100, screen.width() * 2, screen.height() * 2);
    one->show();
    one->close();
    one = window();
    EXPECT_TRUE(screen.contains(one->geometry()));
}

TEST_F(MainWindowTest, theWidgetsBesideTheSettingsShowTheUsersOwnSky)
{
    const auto one = window();
    one->show();
    one->showSettings();
    const auto said = [&] {
        std::string texts;
        for (const DisplayListView* view :
            one->findChild<WidgetPreviews*>()->findChildren<DisplayListView*>())
            texts += view->accessibleDescription().toStdString();
        return texts;
    };
    EXPECT_THAT(said(), testing::Not(HasSubstr("RCH285"))) << "nobody has been asked yet";
    one->showSky();
    EXPECT_TRUE(test::waitFor([&] { return feed.report().hasAnswer; }));
    one->showSettings();
    EXPECT_THAT(said(), HasSubstr("RCH285"));
    SharedState::write({.home = {.latitude = 1, .longitude = 2, .label = "Elsewhere"}, .radiusNM = 25});
    EXPECT_TRUE(test::waitFor([&] { return said().find("RCH285") == std::string::npos; }))
        << "the aircraft of another home";
}

TEST_F(MainWindowTest, everyPageHasRoomInTheSmallestWindow)
{
    const auto one = window();
    one->resize(640, 480);
    one->show();
    EXPECT_EQ(one->size(), QSize(640, 480));
    EXPECT_TRUE(test::waitFor([&] { return feed.report().hasAnswer; }));
    one->showAircraft("a1b2c3");
    EXPECT_EQ(one->size(), QSize(640, 480));
    one->showSettings();
    const auto areas = one->findChildren<QScrollArea*>();
    EXPECT_TRUE(test::waitFor([&] { return std::ranges::any_of(areas, &QScrollArea::isVisible); }));
    for (const QScrollArea* area : areas)
        EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
    const auto lines = one->findChildren<QLineEdit*>();
    const auto position = std::ranges::find(lines, "Position", &QLineEdit::accessibleName);
    ASSERT_NE(position, lines.end());
    EXPECT_GE((*position)->width(), (*position)->fontMetrics().horizontalAdvance("-51.50000, -000.12000"));
}

} // namespace skyvane
