#include "companion/aircraft/aircraft_page.h"
#include "companion/aircraft/photo_card.h"
#include "companion/aircraft/photo_panel.h"
#include "companion/aircraft/route_panel.h"
#include "companion/aircraft/sky_dome.h"
#include "companion/alerts/star_button.h"
#include "companion/look/notice_bar.h"
#include "companion/sky/empty_sky.h"
#include "desk/look/appearance.h"
#include "desk/look/contrast.h"
#include "tests/companion/companion_stage.h"

#include <QLabel>
#include <QStackedWidget>
#include <QTest>

#include <gmock/gmock.h>

namespace skyvane {

namespace {

using namespace std::chrono_literals;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

constexpr const char* routePath = "/v0/callsign/UAL123";
constexpr const char* photoPath = "/pub/photos/hex/";
constexpr const char* imagePath = "/photo.jpg";

constexpr const char* route = R"({"response":{"flightroute":{
  "origin":{"iata_code":"SFO","municipality":"San Francisco"},
  "destination":{"iata_code":"JFK","municipality":"New York"}}}})";
constexpr const char* photo = R"({"photos":[{"thumbnail_large":{"src":"https://t.plnspttrs.net/photo.jpg"},
  "link":"https://www.planespotters.net/photo/1","photographer":"Jane <b>Example"}]})";

class AircraftPageTest : public testing::Test {
protected:
    AircraftPageTest()
    {
        stage.server.answer(test::feedPath, {.body = test::threeAircraft});
        stage.server.answer(routePath, {.body = route});
        stage.server.answer(photoPath, {.body = photo});
        stage.server.answer(imagePath, {.body = test::picture({420, 280}, "JPG")});
        page.resize(1000, 700);
        page.show();
    }

    bool waitForPhoto()
    {
        return test::waitFor([&] { return panel().isVisible() && !panel().credit().startsWith("Looking"); });
    }

    bool says(const QString& title)
    {
        return test::waitFor([&] {
            const auto* empty = page.findChild<EmptySky*>();
            return page.findChild<QStackedWidget*>()->currentWidget() == empty && empty->title() == title;
        });
    }

    bool isInDetail()
    {
        return test::waitFor([&] { return page.findChild<QStackedWidget*>()->currentIndex() == 0; });
    }

    /// Every text that can be seen.
    std::vector<std::string> texts() const
    {
        std::vector<std::string> list;
        for (const QLabel* label : page.findChildren<QLabel*>()) {
            if (label->isVisible())
                list.push_back(label->text().toStdString());
        }
        return list;
    }

    PhotoPanel& panel() const { return *page.findChild<PhotoPanel*>(); }
    RoutePanel& routePanel() const { return *page.findChild<RoutePanel*>(); }

    test::CompanionStage stage;
    SkyFeed feed{stage.errands, stage.pacer.transport()};
    Lookups lookups{stage.errands, stage.decode, stage.pacer.transport()};
    std::vector<QUrl> opened;
    AlertStore alerts{stage.scratch.path() / "alerts.json"};
    Preferences preferences{stage.scratch.path() / "companion.ini"};
    Trails trails;
    AircraftPage page{
        {feed, lookups, alerts, preferences, trails, [this](const QUrl& url) { opened.push_back(url); }},
        stage.fonts};
};

} // namespace

TEST_F(AircraftPageTest, oneAircraftIsShownWithAllThatIsKnown)
{
    page.showAircraft("A1B2C3");
    ASSERT_TRUE(isInDetail());
    ASSERT_TRUE(test::waitFor([&] { return routePanel().isVisible(); }));
    ASSERT_TRUE(waitForPhoto());
    for (const char* text : {"UAL123", "Airbus A320 · N123UA · United Airlines", "35,000 ft", "452 kt",
             "↑ 1,216 ft/min", "9.6 km", "1200 · visual flight", "1 s old", "A320", "A1B2C3", "SFO → JFK",
             "San Francisco → New York", "Look north-east, about 48° above the horizon.",
             "Photo: © Jane <b>Example · planespotters.net"})
        EXPECT_THAT(texts(), Contains(text));
    EXPECT_EQ(page.heading().window, "UAL123");
    EXPECT_THAT(page.heading().details.toStdString(), HasSubstr("as of "));
}

TEST_F(AircraftPageTest, theStarPutsTheAircraftOnTheWatchList)
{
    page.showAircraft("a1b2c3");
    ASSERT_TRUE(isInDetail());
    auto* star = page.findChild<StarButton*>();
    EXPECT_EQ(star->accessibleName(), "On my watch list");
    EXPECT_FALSE(star->isChecked());
    star->click();
    EXPECT_TRUE(star->isChecked());
    EXPECT_EQ(alerts.choices().watch, std::vector<std::string>{"N123UA"});
    alerts.choose({});
    EXPECT_FALSE(star->isChecked());
}

TEST_F(AircraftPageTest, aClickOnThePhotoOpensItsPage)
{
    page.showAircraft("a1b2c3");
    ASSERT_TRUE(waitForPhoto());
    QTest::mouseClick(page.findChild<PhotoCard*>(), Qt::LeftButton);
    EXPECT_THAT(opened, testing::ElementsAre(QUrl{"https://www.planespotters.net/photo/1"}));
}

TEST_F(AircraftPageTest, aPageThatIsNotSecureIsNotOpened)
{
    stage.server.answer(
        photoPath, {.body = R"({"photos":[{"thumbnail_large":{"src":"https://t.plnspttrs.net/photo.jpg"},
            "link":"http://www.planespotters.net/photo/1"}]})"});
    page.showAircraft("a1b2c3");
    ASSERT_TRUE(waitForPhoto());
    EXPECT_EQ(panel().credit(), "Photo: planespotters.net");
    QTest::mouseClick(page.findChild<PhotoCard*>(), Qt::LeftButton);
    EXPECT_THAT(opened, testing::IsEmpty());
}

TEST_F(AircraftPageTest, whatCannotBeHadIsLeftOut)
{
    stage.server.answer(routePath, {.status = 404});
    stage.server.answer(imagePath, {.body = "no picture"});
    page.showAircraft("a1b2c3");
    ASSERT_TRUE(isInDetail());
    EXPECT_TRUE(test::waitFor([&] { return !panel().isVisible(); }));
    EXPECT_TRUE(test::waitFor([&] { return stage.asked(routePath) == 1; }));
    EXPECT_FALSE(routePanel().isVisible());
    EXPECT_EQ(stage.asked(imagePath), 1U);
}

TEST_F(AircraftPageTest, anImageThatIsNotOverHTTPSIsNotAskedFor)
{
    stage.server.answer(photoPath,
        {.body = R"({"photos":[{"thumbnail_large":{"src":"http://t.plnspttrs.net/photo.jpg"}}]})"});
    page.showAircraft("a1b2c3");
    EXPECT_TRUE(test::waitFor([&] { return !panel().isVisible(); }));
    EXPECT_EQ(stage.asked(imagePath), 0U);
}

TEST_F(AircraftPageTest, nobodyIsAskedAboutWhatHasNeitherRouteNorPhoto)
{
    page.showAircraft("~4ca7b4");
    ASSERT_TRUE(isInDetail());
    EXPECT_THAT(texts(), Contains("It reports an emergency (7700)."));
    EXPECT_FALSE(panel().isVisible());
    EXPECT_EQ(stage.asked("/v0/"), 0U);
    EXPECT_EQ(stage.asked(photoPath), 0U);
}

TEST_F(AircraftPageTest, nobodyIsAskedForAPhotoOfAnAddressOfNoState)
{
    std::string made = test::threeAircraft;
    made.replace(made.find("a1b2c3"), 6, "fffffe");
    stage.server.answer(test::feedPath, {.body = made});
    page.showAircraft("fffffe");
    ASSERT_TRUE(isInDetail());
    EXPECT_TRUE(test::waitFor([&] { return stage.asked(routePath) == 1; }));
    EXPECT_FALSE(panel().isVisible());
    EXPECT_EQ(stage.asked(photoPath), 0U);
}

TEST_F(AircraftPageTest, figuresAreInTheMeasuresThatWereChosen)
{
    preferences.choose(Measures::metric);
    page.showAircraft("a1b2c3");
    ASSERT_TRUE(isInDetail());
    for (const char* text : {"10,668 m", "838 km/h", "↑ 6.2 m/s", "9.6 km"})
        EXPECT_THAT(texts(), Contains(text));
    preferences.choose(Measures::imperial);
    for (const char* text : {"35,000 ft", "520 mph", "↑ 1,216 ft/min"})
        EXPECT_THAT(texts(), Contains(text));
}

TEST_F(AircraftPageTest, anEmergencyCanBeReadOnWhateverTheWindowBecomes)
{
    page.showAircraft("~4ca7b4");
    ASSERT_TRUE(isInDetail());
    const auto isRead = [&] {
        const auto labels = page.findChildren<QLabel*>();
        const auto alarm = std::ranges::find_if(
            labels, [](const QLabel* label) { return label->text().contains("emergency"); });
        const QPalette palette = (*alarm)->palette();
        return contrast(palette.color(QPalette::WindowText), palette.color(QPalette::Window)) >= 4.5;
    };
    for (const QPalette& palette : {Appearance::darkPalette(), QPalette{Qt::white}}) {
        page.setPalette(palette);
        EXPECT_TRUE(test::waitFor(isRead)) << palette.color(QPalette::Window).name().toStdString();
    }
}

TEST_F(AircraftPageTest, anAnswerIsRememberedForTheVisit)
{
    for (int visit = 0; visit < 2; ++visit) {
        page.showAircraft("a1b2c3");
        ASSERT_TRUE(waitForPhoto());
        ASSERT_TRUE(test::waitFor([&] { return routePanel().isVisible(); }));
        page.leave();
    }
    for (const char* path : {routePath, photoPath, imagePath})
        EXPECT_EQ(stage.asked(path), 1U) << path;
}

TEST_F(AircraftPageTest, movingOnCallsOffWhatIsStillLookedFor)
{
    stage.stall("/pub/photos/hex/a1b2c3");
    page.showAircraft("a1b2c3");
    ASSERT_TRUE(test::waitFor([&] { return stage.asked("/pub/photos/hex/a1b2c3") == 1; }));
    page.showAircraft("ae0001");
    ASSERT_TRUE(waitForPhoto());
    EXPECT_EQ(stage.asked("/pub/photos/hex/ae0001"), 1U);
    EXPECT_THAT(texts(), Contains("RCH285"));
}

TEST_F(AircraftPageTest, slowSourcesNeverBlockTheWindow)
{
    for (const char* path : {routePath, photoPath})
        stage.stall(path);
    feed.refresh();
    ASSERT_TRUE(test::waitFor([&] { return feed.report().hasAnswer; }));
    test::StallMeter meter;
    page.showAircraft("a1b2c3");
    ASSERT_TRUE(isInDetail());
    ASSERT_TRUE(test::waitFor([&] { return stage.asked(routePath) == 1 && stage.asked(photoPath) == 1; }));
    QElapsedTimer clock;
    clock.start();
    EXPECT_TRUE(test::waitFor([&] { return clock.hasExpired(1000); }));
    EXPECT_THAT(texts(), Contains("Looking for a photo…"));
    page.leave();
    EXPECT_LT(meter.longest(), 500ms);
}

TEST_F(AircraftPageTest, textsOfMegabytesNeverBlockTheWindow)
{
    std::string longText = "ab ";
    while (longText.size() < 3'900'000)
        longText += longText;
    const auto city = R"({"municipality":")" + longText + R"(","iata_code":"SFO"})";
    stage.server.answer(test::feedPath,
        {.body = R"({"ac":[{"hex":"a1b2c3","flight":"UAL123","lat":51.6,"lon":-0.2,"dst":5.2,"ownOp":")"
                + longText + "\"}]}"});
    stage.server.answer(routePath,
        {.body = R"({"response":{"flightroute":{"origin":)" + city + R"(,"destination":)"
                + R"({"iata_code":"JFK","municipality":"New York"}}}})"});
    stage.server.answer(photoPath,
        {.body
            = R"({"photos":[{"thumbnail_large":{"src":"https://t.plnspttrs.net/photo.jpg"},"photographer":")"
                + longText + "\"}]}"});
    test::StallMeter meter;
    page.showAircraft("a1b2c3");
    ASSERT_TRUE(isInDetail());
    ASSERT_TRUE(test::waitFor([&] { return routePanel().isVisible(); }));
    ASSERT_TRUE(waitForPhoto());
    QTest::qWait(0);
    EXPECT_LT(meter.longest(), 1000ms);
    for (const std::string& text : texts())
        EXPECT_LT(text.size(), 600U);
    EXPECT_THAT(texts(), Contains(testing::EndsWith("Ab Ab …")));
}

TEST_F(AircraftPageTest, anAircraftThatHasLeftIsSaidToHaveLeft)
{
    page.showAircraft("a1b2c3");
    ASSERT_TRUE(isInDetail());
    stage.server.answer(test::feedPath, {.body = R"({"ac":[{"hex":"b","lat":1,"lon":2}]})"});
    feed.refresh();
    const auto* notice = page.findChild<NoticeBar*>();
    EXPECT_TRUE(test::waitFor([&] { return notice->isVisible(); }));
    EXPECT_THAT(notice->text().toStdString(), HasSubstr("no longer in range"));
    EXPECT_THAT(texts(), Contains("UAL123"));
    EXPECT_THAT(texts(), Not(Contains(HasSubstr("above the horizon"))));
}

TEST_F(AircraftPageTest, theEmergencyOfOneThatHasLeftIsPast)
{
    page.showAircraft("~4ca7b4");
    ASSERT_TRUE(isInDetail());
    EXPECT_THAT(texts(), Contains("It reports an emergency (7700)."));
    stage.server.answer(test::feedPath, {.body = R"({"ac":[{"hex":"b","lat":1,"lon":2}]})"});
    feed.refresh();
    EXPECT_TRUE(test::waitFor([&] {
        const auto now = texts();
        return std::ranges::find(now, "It reported an emergency (7700).") != now.end();
    }));
}

TEST_F(AircraftPageTest, whenAndHowHighItPassesIsSaidAndDrawn)
{
    stage.server.answer(test::feedPath,
        {.body = R"({"ac":[{"hex":"a1b2c3","lat":51.35,"lon":-0.02,"alt_baro":35000,"gs":480,"track":0,
            "seen_pos":0,"dst":9.7,"dir":157}]})"});
    page.showAircraft("a1b2c3");
    ASSERT_TRUE(isInDetail());
    EXPECT_THAT(texts(), Contains("It passes 57° high in the east in 1 min."));
    EXPECT_THAT(page.findChild<SkyDome*>()->accessibleDescription().toStdString(),
        HasSubstr("It passes 57° high in the east in 1 min."));
}

TEST_F(AircraftPageTest, theFlightsAirlineNamesAnOperatorThatIsNotKnownOtherwise)
{
    stage.server.answer(test::feedPath,
        {.body = R"({"ac":[{"hex":"4ca123","flight":"RYR7AB","t":"B738","lat":51.6,"lon":-0.2}]})"});
    stage.server.answer("/v0/callsign/RYR7AB",
        {.body = R"({"response":{"flightroute":{"airline":{"name":"Ryanair","icao":"RYR"}}}})"});
    page.showAircraft("4ca123");
    ASSERT_TRUE(isInDetail());
    EXPECT_TRUE(test::waitFor([&] {
        const auto now = texts();
        return std::ranges::find(now, "Boeing 737-800 · Ryanair") != now.end();
    }));
    EXPECT_FALSE(routePanel().isVisible());
    page.showAircraft("a1b2c3");
    EXPECT_THAT(texts(), Not(Contains(HasSubstr("Ryanair"))));
}

TEST_F(AircraftPageTest, aRouteThatEndsWhereItBeganIsNone)
{
    stage.server.answer(routePath, {.body = R"({"response":{"flightroute":{"airline":{"name":"Nobody's"},
            "origin":{"iata_code":"SFO"},"destination":{"iata_code":"SFO"}}}})"});
    page.showAircraft("a1b2c3");
    ASSERT_TRUE(isInDetail());
    EXPECT_TRUE(test::waitFor([&] { return stage.asked(routePath) == 1; }));
    ASSERT_TRUE(waitForPhoto());
    EXPECT_FALSE(routePanel().isVisible());
    EXPECT_THAT(texts(), Contains("Airbus A320 · N123UA · United Airlines")) << "the table's name";
}

TEST_F(AircraftPageTest, anAircraftThatIsElsewhereIsSaidToBe)
{
    page.showAircraft("ffffff");
    EXPECT_TRUE(says("FFFFFF is not in range"));
}

TEST_F(AircraftPageTest, theFeedsErrorIsSaid)
{
    stage.server.answer(test::feedPath, {.status = 500});
    stage.server.answer(test::secondFeedPath, {.status = 500});
    page.showAircraft("a1b2c3");
    EXPECT_TRUE(says("No answer"));
    EXPECT_EQ(page.findChild<EmptySky*>()->explanation(),
        "adsb.lol is out of order (500).\nadsb.fi is out of order (500).");
}

TEST_F(AircraftPageTest, withoutAHomeItIsSaidWhatIsMissing)
{
    SharedState::clear();
    page.showAircraft("a1b2c3");
    EXPECT_TRUE(says("Where is home?"));
}

} // namespace skyvane
