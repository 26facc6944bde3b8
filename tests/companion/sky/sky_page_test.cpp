#include "companion/look/details.h"
#include "companion/look/notice_bar.h"
#include "companion/sky/empty_sky.h"
#include "companion/sky/live_scope.h"
#include "companion/sky/sky_cells.h"
#include "companion/sky/sky_page.h"
#include "companion/sky/sky_table.h"
#include "platform/pinned.h"
#include "tests/companion/companion_stage.h"

#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>
#include <QToolButton>

#include <gmock/gmock.h>

#include <algorithm>

namespace skyvane {

namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;
using testing::HasSubstr;

class SkyPageTest : public testing::Test {
protected:
    SkyPageTest()
    {
        page.resize(1100, 700);
        page.show();
    }

    bool listHas(int rows)
    {
        return test::waitFor([&] { return isListShown() && table().rowCount() == rows; });
    }

    bool says(const QString& title)
    {
        return test::waitFor([&] { return !isListShown() && empty().title() == title; });
    }

    bool isListShown() const { return page.findChild<QStackedWidget*>()->currentWidget() == &table(); }
    SkyTable& table() const { return *page.findChild<SkyTable*>(); }
    LiveScope& scope() const { return *page.findChild<LiveScope*>(); }
    EmptySky& empty() const { return *page.findChild<EmptySky*>(); }
    bool isOnScope(const std::string& hex) const { return scope().placeOf(hex).has_value(); }
    void clickOnScope(const std::string& hex) const
    {
        QTest::mouseClick(&scope(), Qt::LeftButton, {}, scope().placeOf(hex).value().toPoint());
    }
    std::string details() const { return page.heading().details.toStdString(); }

    /// What the visible bars say.
    std::string notices() const
    {
        std::string text;
        for (const NoticeBar* bar : page.findChildren<NoticeBar*>())
            text += bar->isVisible() ? bar->text().toStdString() : "";
        return text;
    }

    test::CompanionStage stage;
    SkyFeed feed{stage.errands, stage.pacer.transport(), 300ms};
    AlertStore alerts{stage.scratch.path() / "alerts.json"};
    Preferences preferences{stage.scratch.path() / "companion.ini"};
    SkyPage page{feed, alerts, preferences, stage.fonts};
};

} // namespace

TEST_F(SkyPageTest, theAircraftComeNearestFirstWithTheirTime)
{
    stage.server.answer(test::feedPath, {.body = test::threeAircraft});
    const Pinned<Date> clock{Date{std::chrono::hours{10} + 42min}};
    feed.refresh();
    ASSERT_TRUE(listHas(3));
    EXPECT_EQ(table().model()->index(0, 0).data().toString(), "UAL123");
    EXPECT_EQ(page.heading().title, "The sky over Home");
    EXPECT_EQ(details(), "3 aircraft within 46 km · as of 10:42:00");
}

TEST_F(SkyPageTest, enterOpensTheAircraftOfTheRow)
{
    stage.server.answer(test::feedPath, {.body = test::threeAircraft});
    feed.refresh();
    ASSERT_TRUE(listHas(3));
    QString opened;
    QObject::connect(&page, &SkyPage::aircraftActivated, [&](const QString& hex) { opened = hex; });
    table().setCurrentIndex(table().model()->index(1, 0));
    QTest::keyClick(&table(), Qt::Key_Return);
    EXPECT_EQ(opened, "ae0001");
    const QRect row = table().visualRect(table().model()->index(2, 1));
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, row.center());
    QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, row.center());
    EXPECT_EQ(opened, "~4ca7b4");
}

TEST_F(SkyPageTest, theStarOfARowPutsItsAircraftOnTheWatchList)
{
    stage.server.answer(test::feedPath, {.body = test::threeAircraft});
    feed.refresh();
    ASSERT_TRUE(listHas(3));
    const auto star = [&](int row) { return table().model()->index(row, static_cast<int>(SkyColumn::star)); };
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, table().visualRect(star(0)).center());
    EXPECT_EQ(alerts.choices().watch, std::vector<std::string>{"N123UA"});
    EXPECT_EQ(star(0).data(Qt::AccessibleTextRole), "On my watch list");
    EXPECT_EQ(star(1).data(Qt::AccessibleTextRole), "Not on my watch list");
    table().setCurrentIndex(table().model()->index(1, 0));
    QTest::keyClick(&table(), Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(alerts.choices().watch, (std::vector<std::string>{"N123UA", "ae0001"}));
    QTest::keyClick(&table(), Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(alerts.choices().watch, std::vector<std::string>{"N123UA"});
}

TEST_F(SkyPageTest, aDoubleClickOnAStarOpensNothing)
{
    stage.server.answer(test::feedPath, {.body = test::threeAircraft});
    feed.refresh();
    ASSERT_TRUE(listHas(3));
    bool isOpened = false;
    QObject::connect(&page, &SkyPage::aircraftActivated, [&] { isOpened = true; });
    const auto star = table().model()->index(0, static_cast<int>(SkyColumn::star));
    QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, table().visualRect(star).center());
    EXPECT_FALSE(isOpened);
}

TEST_F(SkyPageTest, theFilterNarrowsTheListAndSaysWhenNothingMatches)
{
    stage.server.answer(test::feedPath, {.body = test::threeAircraft});
    feed.refresh();
    ASSERT_TRUE(listHas(3));
    auto* filter = page.findChild<QLineEdit*>();
    filter->setText("united");
    EXPECT_TRUE(listHas(1));
    filter->setText("zeppelin");
    EXPECT_TRUE(says("No match"));
    empty().findChild<QPushButton*>()->click();
    EXPECT_TRUE(listHas(3));
}

TEST_F(SkyPageTest, aClickOnTheScopeSelectsInTheListAndBesideAllAircraftNothing)
{
    stage.server.answer(test::feedPath, {.body = test::threeAircraft});
    feed.refresh();
    ASSERT_TRUE(listHas(3));
    clickOnScope("ae0001");
    EXPECT_EQ(table().selectedHex(), "ae0001");
    EXPECT_EQ(table().currentIndex().row(), 1);
    QTest::mouseClick(&scope(), Qt::LeftButton, {}, {5, 5});
    EXPECT_EQ(table().selectedHex(), "");
}

TEST_F(SkyPageTest, whatIsSelectedInTheListIsMarkedOnTheScope)
{
    stage.server.answer(test::feedPath, {.body = test::threeAircraft});
    feed.refresh();
    ASSERT_TRUE(listHas(3));
    const QImage before = scope().grab().toImage();
    const QRect row = table().visualRect(table().model()->index(1, 1));
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, row.center());
    EXPECT_EQ(scope().parts().at(scope().focusedLink().value()).text,
        "RCH285, Military, Boeing C-17 Globemaster III, US Air Mobility Command, 16.9 km, 24,000 ft");
    EXPECT_NE(scope().grab().toImage(), before);
}

TEST_F(SkyPageTest, aDoubleClickOnTheScopeOpensTheAircraft)
{
    stage.server.answer(test::feedPath, {.body = test::threeAircraft});
    feed.refresh();
    ASSERT_TRUE(listHas(3));
    QStringList opened;
    QObject::connect(&page, &SkyPage::aircraftActivated, [&](const QString& hex) { opened += hex; });
    clickOnScope("ae0001");
    EXPECT_THAT(opened, testing::IsEmpty());
    QTest::mouseDClick(&scope(), Qt::LeftButton, {}, scope().placeOf("ae0001").value().toPoint());
    EXPECT_EQ(opened, QStringList{"ae0001"});
}

TEST_F(SkyPageTest, theFilterIsTheScopesToo)
{
    stage.server.answer(test::feedPath, {.body = test::threeAircraft});
    feed.refresh();
    ASSERT_TRUE(listHas(3));
    clickOnScope("ae0001");
    QTest::keyClicks(page.findChild<QLineEdit*>(), "united");
    EXPECT_TRUE(isOnScope("a1b2c3"));
    EXPECT_FALSE(isOnScope("ae0001"));
    EXPECT_EQ(table().selectedHex(), "a1b2c3"); // The list goes on to the next one, and the scope with it.
    EXPECT_THAT(scope().parts().at(scope().focusedLink().value()).text, testing::StartsWith("UAL123"));
    page.findChild<QLineEdit*>()->clear();
    EXPECT_TRUE(isOnScope("ae0001"));
}

TEST_F(SkyPageTest, aRefreshKeepsTheSelectionInListAndScope)
{
    stage.server.answer(test::feedPath, {.body = test::threeAircraft});
    feed.refresh();
    ASSERT_TRUE(listHas(3));
    clickOnScope("ae0001");
    stage.server.answer(test::feedPath,
        {.body = R"({"ac":[{"hex":"ae0001","flight":"RCH285","lat":51.6,"lon":-0.2,"dst":4,"dir":200},
            {"hex":"a1b2c3","lat":51.7,"lon":-0.2,"dst":9,"dir":45}]})"});
    feed.refresh();
    ASSERT_TRUE(listHas(2));
    EXPECT_EQ(table().selectedHex(), "ae0001");
    EXPECT_EQ(
        scope().parts().at(scope().focusedLink().value()).text, "RCH285, US Air Mobility Command, 7.4 km");
}

TEST_F(SkyPageTest, thePositionsSeenAreKeptAsTrails)
{
    stage.server.answer(test::feedPath, {.body = test::threeAircraft});
    feed.refresh();
    ASSERT_TRUE(listHas(3));
    const Pinned<Date> later{Clock::now() + 1min};
    stage.server.answer(test::feedPath,
        {.body = R"({"ac":[{"hex":"a1b2c3","flight":"UAL123","lat":51.65,"lon":-0.1,"dst":9,"dir":5}]})"});
    feed.refresh();
    ASSERT_TRUE(listHas(1));
    EXPECT_EQ(page.trails().of("a1b2c3").size(), 2U);
    EXPECT_EQ(page.trails().of("ae0001").size(), 1U);
}

TEST_F(SkyPageTest, theRowThatIsSelectedIsCopiedAsTextsWithTabs)
{
    stage.server.answer(test::feedPath, {.body = test::threeAircraft});
    feed.refresh();
    ASSERT_TRUE(listHas(3));
    QGuiApplication::clipboard()->setText("before");
    page.activateWindow();
    table().setFocus();
    ASSERT_TRUE(test::waitFor([&] { return table().hasFocus(); }));
    table().clearSelection();
    QTest::keyClick(&table(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "before");
    table().select("a1b2c3");
    QTest::keyClick(&table(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
        "UAL123\tAirbus A320\tUnited Airlines\t9.6 km\t35,000 ft\t↑ 1,216 ft/min");
}

TEST_F(SkyPageTest, theScopeGrowsWithTheWindow)
{
    const int before = scope().width();
    page.resize(1700, 1000);
    EXPECT_TRUE(
        test::waitFor([&] { return scope().width() > before * 2 && scope().width() == scope().height(); }));
    EXPECT_LT(scope().mapTo(&page, scope().rect().bottomRight()).y(), page.height());
    EXPECT_GE(page.findChild<QStackedWidget*>()->width(), 700); // The list's place.
}

TEST_F(SkyPageTest, aListThatWasNarrowShowsWholeNamesWhenItIsWiderAgain)
{
    stage.server.answer(test::feedPath, {.body = test::threeAircraft});
    feed.refresh();
    ASSERT_TRUE(listHas(3));
    constexpr int name = static_cast<int>(SkyColumn::name);
    const auto widthAt = [&](int width) {
        table().resize(width, 300);
        return table().columnWidth(name);
    };
    const int whole = widthAt(1200);
    widthAt(250);
    EXPECT_EQ(widthAt(600), whole);
}

TEST_F(SkyPageTest, anEmptySkyIsSaidInTheUsersUnit)
{
    test::CompanionStage::setHome(21.7, "mi");
    stage.server.answer("/", {.body = R"({"ac":[]})"});
    feed.refresh();
    ASSERT_TRUE(says("Quiet skies"));
    EXPECT_THAT(empty().explanation().toStdString(), HasSubstr("No aircraft within 25 mi, as of "));
}

TEST_F(SkyPageTest, theFeedsOwnErrorIsSaidAndAskedAgain)
{
    stage.server.answer("/", {.status = 503});
    feed.refresh();
    ASSERT_TRUE(says("No answer"));
    EXPECT_EQ(empty().explanation(), "adsb.lol is out of order (503).\nadsb.fi is out of order (503).");
    stage.server.answer("/", {.body = test::threeAircraft});
    empty().findChild<QPushButton*>()->click();
    EXPECT_TRUE(listHas(3));
}

TEST_F(SkyPageTest, whatALibrarySaidStandsBehindDetailsOnly)
{
    const char* const librarys = "ac[0].hex: expected a string, found 7";
    stage.server.answer("/", {.body = R"({"ac":[{"hex":7}]})"});
    feed.refresh();
    ASSERT_TRUE(says("No answer"));
    EXPECT_EQ(empty().explanation(),
        "adsb.lol: The answer is not what was expected.\nadsb.fi: The answer is not what was expected.");
    auto& details = *empty().findChild<Details*>();
    auto* const text = details.findChild<QLabel*>();
    EXPECT_TRUE(details.isVisible());
    EXPECT_FALSE(text->isVisible());
    details.findChild<QToolButton*>()->click();
    EXPECT_TRUE(text->isVisible());
    EXPECT_EQ(details.text(), librarys);

    stage.server.answer("/", {.status = 503});
    feed.refresh();
    EXPECT_TRUE(test::waitFor([&] { return !details.isVisible(); }));

    stage.server.answer("/", {.body = test::threeAircraft});
    feed.refresh();
    ASSERT_TRUE(listHas(3));
    stage.server.answer("/", {.body = R"({"ac":[{"hex":7}]})"});
    feed.refresh();
    EXPECT_TRUE(test::waitFor([&] { return !notices().empty(); }));
    EXPECT_THAT(notices(), testing::Not(HasSubstr(librarys)));
    const auto bars = page.findChildren<NoticeBar*>();
    EXPECT_TRUE(std::ranges::any_of(
        bars, [&](const NoticeBar* bar) { return bar->findChild<Details*>()->text() == librarys; }));
}

TEST_F(SkyPageTest, aFailedRefreshKeepsTheListAndSaysSo)
{
    stage.server.answer("/", {.body = test::threeAircraft});
    feed.refresh();
    ASSERT_TRUE(listHas(3));
    stage.server.answer("/", {.status = 500});
    feed.refresh();
    EXPECT_TRUE(test::waitFor([&] { return !notices().empty(); }));
    EXPECT_THAT(notices(), HasSubstr("adsb.fi is out of order (500)."));
    EXPECT_TRUE(isListShown());
    stage.server.answer("/", {.body = test::threeAircraft});
    feed.refresh();
    EXPECT_TRUE(test::waitFor([&] { return notices().empty(); }));
}

TEST_F(SkyPageTest, thatItIsAskedIsSaidAtOnceAndEveryTryLeavesATrace)
{
    std::optional<Pinned<Date>> clock{Date{std::chrono::hours{10} + 42min}};
    stage.server.answer("/", {.body = test::threeAircraft});
    feed.refresh();
    EXPECT_EQ(details(), "Asking…");
    ASSERT_TRUE(listHas(3));
    clock.emplace(Date{std::chrono::hours{10} + 42min + 7s});
    feed.refresh();
    EXPECT_EQ(details(), "3 aircraft within 46 km · as of 10:42:00 · Asking…");
    EXPECT_TRUE(test::waitFor([&] { return details() == "3 aircraft within 46 km · as of 10:42:07"; }));
    clock.emplace(Date{std::chrono::hours{10} + 42min + 9s});
    stage.server.answer("/", {.status = 403});
    feed.refresh();
    EXPECT_TRUE(test::waitFor([&] { return !notices().empty(); }));
    EXPECT_EQ(notices(),
        "What is shown here is as of 10:42:07. The last try, at 10:42:09, failed.\n"
        "adsb.lol refuses to answer (403).\nadsb.fi refuses to answer (403).");
}

TEST_F(SkyPageTest, aTryInVainIsNotCalledAnEmptySky)
{
    const Pinned<Date> clock{Date{std::chrono::hours{10} + 42min}};
    stage.server.answer("/", {.status = 403});
    feed.refresh();
    ASSERT_TRUE(says("No answer"));
    EXPECT_EQ(details(), "Asked in vain at 10:42:00");
}

TEST_F(SkyPageTest, whichSourceAnsweredStandsBesideItsName)
{
    stage.server.answer(test::feedPath, {.status = 503});
    stage.server.answer(test::secondFeedPath, {.body = test::threeAircraft});
    feed.refresh();
    ASSERT_TRUE(listHas(3));
    const auto labels = page.findChildren<QLabel*>();
    const auto says = [&](const char* text) {
        return std::ranges::any_of(labels, [&](const QLabel* label) { return label->text().contains(text); });
    };
    EXPECT_TRUE(says("adsb.lol</a> (refused)"));
    EXPECT_TRUE(says("adsb.fi</a> (answered)"));
    stage.server.answer(test::feedPath, {.body = test::threeAircraft});
    feed.refresh();
    EXPECT_TRUE(test::waitFor([&] { return says("adsb.lol</a> (answered)"); }));
    EXPECT_FALSE(says("adsb.fi</a> ("));
}

TEST_F(SkyPageTest, withoutAHomeNobodyIsAsked)
{
    SharedState::clear();
    feed.setWatched(true);
    feed.refresh();
    ASSERT_TRUE(says("Where is home?"));
    bool wanted = false;
    QObject::connect(&page, &SkyPage::settingsWanted, [&] { wanted = true; });
    empty().findChild<QPushButton*>()->click();
    EXPECT_TRUE(wanted);
    EXPECT_EQ(stage.server.connectionCount(), 0U);
}

TEST_F(SkyPageTest, aNewHomeShowsAnotherSkyAtOnce)
{
    stage.server.answer(test::feedPath, {.body = test::threeAircraft});
    feed.setWatched(true);
    ASSERT_TRUE(listHas(3));
    stage.server.answer(test::feedPath, {.body = R"({"ac":[{"hex":"one","lat":1,"lon":2}]})"});
    SharedState::write({.home = {.latitude = 1, .longitude = 2, .label = "Elsewhere"}, .radiusNM = 50});
    feed.reload();
    EXPECT_EQ(table().rowCount(), 0);
    ASSERT_TRUE(listHas(1));
    EXPECT_EQ(stage.asked("/v2/point/1.00000/2.00000/50"), 1U);
}

TEST_F(SkyPageTest, theSkyIsAskedForWhileItIsWatchedOnly)
{
    stage.server.answer(test::feedPath, {.body = test::threeAircraft});
    feed.setWatched(true);
    EXPECT_TRUE(test::waitFor([&] { return stage.asked(test::feedPath) >= 3; }));
    feed.setWatched(false);
    EXPECT_TRUE(test::waitFor([&] { return !feed.report().isAsking; }));
    const auto asked = stage.asked(test::feedPath);
    QElapsedTimer clock;
    clock.start();
    EXPECT_TRUE(test::waitFor([&] { return clock.hasExpired(700); }));
    EXPECT_EQ(stage.asked(test::feedPath), asked);
}

TEST_F(SkyPageTest, aStalledFeedNeverBlocksTheWindow)
{
    stage.stall("/");
    feed.refresh();
    test::StallMeter meter;
    ASSERT_TRUE(test::waitFor([&] { return stage.asked(test::feedPath) == 1; }));
    EXPECT_TRUE(says("Looking at the sky…"));
    QElapsedTimer clock;
    clock.start();
    EXPECT_TRUE(test::waitFor([&] { return clock.hasExpired(500); }));
    EXPECT_LT(meter.longest(), 500ms);
}

TEST_F(SkyPageTest, asManyAircraftAsThereMayBeWithTheLongestTextsNeverBlockTheWindow)
{
    constexpr int most = 50'000;
    std::string body = R"({"ac":[)";
    for (int index = 0; index < most; ++index)
        body += (index == 0 ? "" : ",") + R"({"lat":51.6,"lon":-0.2,"hex":")"s
            + std::to_string(100'000 + index) + R"(","flight":")"
            + std::string(90, static_cast<char>('A' + index % 26)) + "\"}";
    stage.server.answer(test::feedPath, {.body = body + "]}"});
    const test::TurnMeter meter;
    feed.refresh();
    ASSERT_TRUE(test::waitFor([&] { return isListShown() && table().rowCount() == most; }, 60s));
    QTest::keyClick(&table(), Qt::Key_End);
    QTest::keyClick(&table(), Qt::Key_PageUp);
    page.findChild<QLineEdit*>()->setText("AAA");
    ASSERT_TRUE(listHas(most / 26 + 1));
    EXPECT_LT(meter.longest(), 5s); // Some tenths of a second where no sanitizer watches.
}

TEST_F(SkyPageTest, whatSteersTextIsNeitherInTheListNorInTheTitle)
{
    SharedState::write(
        {.home = {.latitude = 51.5, .longitude = -0.12, .label = "\u202EHome\x1b[31m"}, .radiusNM = 25});
    stage.server.answer(test::feedPath,
        {.body = R"({"ac":[{"hex":"a1b2c3","flight":"\u202eUAL\u0007\u009b1","lat":51.6,"lon":-0.2}]})"});
    feed.refresh();
    ASSERT_TRUE(listHas(1));
    EXPECT_EQ(table().model()->index(0, 0).data().toString(), "UAL  1");
    EXPECT_EQ(page.heading().title, "The sky over Home [31m");
}

TEST_F(SkyPageTest, theScopeGoesWhereThereIsNoRoomForIt)
{
    EXPECT_TRUE(page.findChild<LiveScope*>()->isVisible());
    page.resize(700, 600);
    EXPECT_TRUE(test::waitFor([&] { return !page.findChild<LiveScope*>()->isVisible(); }));
}

TEST_F(SkyPageTest, figuresAreInTheMeasuresThatWereChosen)
{
    stage.server.answer(test::feedPath, {.body = test::threeAircraft});
    feed.refresh();
    ASSERT_TRUE(listHas(3));
    const auto cell = [&](SkyColumn column) {
        return table().model()->index(0, static_cast<int>(column)).data().toString();
    };
    EXPECT_EQ(cell(SkyColumn::altitude), "35,000 ft");
    EXPECT_EQ(cell(SkyColumn::climb), "↑ 1,216 ft/min");
    preferences.choose(Measures::metric);
    EXPECT_EQ(cell(SkyColumn::altitude), "10,668 m");
    EXPECT_EQ(cell(SkyColumn::climb), "↑ 6.2 m/s");
    EXPECT_EQ(cell(SkyColumn::distance), "9.6 km") << "distances have a unit of their own";
}

TEST_F(SkyPageTest, theMapBelowTheScopeIsSwitchedBesideIt)
{
    auto* box = page.findChild<QCheckBox*>();
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(box->isVisible());
    EXPECT_TRUE(box->isChecked());
    box->click();
    EXPECT_FALSE(preferences.isMapShown());
    preferences.showMap(true);
    EXPECT_TRUE(box->isChecked());
    page.resize(700, 600);
    EXPECT_FALSE(box->isVisible()) << "as the scope";
}

} // namespace skyvane
