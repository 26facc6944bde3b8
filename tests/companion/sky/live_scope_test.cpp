#include "companion/sky/live_scope.h"
#include "tests/companion/companion_stage.h"

#include <QAccessible>
#include <QApplication>
#include <QMouseEvent>
#include <QTest>

#include <gmock/gmock.h>

#include <ctime>
#include <iostream>

namespace skyvane {

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

class LiveScopeTest : public testing::Test {
protected:
    LiveScopeTest()
    {
        scope.resize(400, 400);
        scope.show();
        QObject::connect(&scope, &LiveScope::aircraftSelected,
            [this](const QString& hex) { selected.push_back(hex.toStdString()); });
        QObject::connect(&scope, &LiveScope::aircraftActivated,
            [this](const QString& hex) { opened.push_back(hex.toStdString()); });
    }

    static Aircraft at(std::string hex, double distanceNM, double directionDeg)
    {
        return {.hex = std::move(hex), .track = 0, .distanceNM = distanceNM, .directionDeg = directionDeg};
    }

    void show(std::vector<Aircraft> aircraft, Date date = {})
    {
        SkyEntry entry = SkyEntry::around(std::nullopt, std::move(aircraft));
        entry.home = HomeLocation{.latitude = 51.5, .longitude = -0.12, .label = "Home"};
        entry.unit = "km";
        entry.date = date;
        trails.note(entry);
        scope.showSky(entry, Measures::aviation, trails);
    }

    void move(QPointF place)
    {
        QMouseEvent event{
            QEvent::MouseMove, place, scope.mapToGlobal(place), Qt::NoButton, Qt::NoButton, Qt::NoModifier};
        QApplication::sendEvent(&scope, &event);
    }

    QImage picture() { return scope.grab().toImage(); }

    /// Whether something is painted there, or so many pixels beside.
    bool isInkAt(QPointF place, int reach = 1)
    {
        const QImage image = picture();
        const QColor background = image.pixelColor(30, 30);
        const QPoint middle{static_cast<int>(place.x()), static_cast<int>(place.y())};
        for (int x = -reach; x <= reach; ++x) {
            for (int y = -reach; y <= reach; ++y) {
                const QColor color = image.pixelColor(middle + QPoint{x, y});
                if (std::abs(color.green() - background.green()) > 60
                    || std::abs(color.red() - background.red()) > 60)
                    return true;
            }
        }
        return false;
    }

    Pinned<Locale> locale{{.numbers = "en_US", .times = "en_GB", .timeZone = "UTC"}};
    FontMeasurer fonts;
    Trails trails;
    LiveScope scope{fonts};
    std::vector<std::string> selected;
    std::vector<std::string> opened;
};

} // namespace

TEST_F(LiveScopeTest, aClickSelectsTheNearestAircraftWithinReach)
{
    show({at("near", 10, 45), at("far", 20, 45)});
    const QPointF place = scope.placeOf("near").value();
    QTest::mouseClick(&scope, Qt::LeftButton, {}, (place + QPointF{6, 4}).toPoint());
    QTest::mouseClick(&scope, Qt::LeftButton, {}, (place + QPointF{20, 0}).toPoint());
    QTest::mouseClick(&scope, Qt::RightButton, {}, place.toPoint());
    EXPECT_THAT(selected, ElementsAre("near", ""));
    EXPECT_THAT(opened, testing::IsEmpty());
}

TEST_F(LiveScopeTest, thePointerOverAnAircraftNamesIt)
{
    show({at("near", 10, 45)});
    const QImage before = picture();
    move(scope.placeOf("near").value());
    EXPECT_EQ(scope.cursor().shape(), Qt::PointingHandCursor);
    EXPECT_NE(picture(), before);
    move({30, 200});
    EXPECT_EQ(scope.cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(picture(), before);
    move(scope.placeOf("near").value());
    QEvent left{QEvent::Leave};
    QApplication::sendEvent(&scope, &left);
    EXPECT_EQ(picture(), before);
}

TEST_F(LiveScopeTest, theArrowKeysGoFromTheNearestToTheFarthestAndRoundAgain)
{
    show({at("one", 5, 0), at("two", 10, 90), at("three", 15, 180)});
    for (const int key :
        {Qt::Key_Right, Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_Left, Qt::Key_Up})
        QTest::keyClick(&scope, static_cast<Qt::Key>(key));
    EXPECT_THAT(selected, ElementsAre("one", "two", "three", "one", "three", "two"));
    QTest::keyClick(&scope, Qt::Key_Return);
    EXPECT_THAT(opened, ElementsAre("two"));
}

TEST_F(LiveScopeTest, onAnEmptyScopeNoKeyDoesAnything)
{
    show({});
    for (const auto key : {Qt::Key_Right, Qt::Key_Left, Qt::Key_Return})
        QTest::keyClick(&scope, key);
    EXPECT_THAT(selected, testing::IsEmpty());
    EXPECT_THAT(opened, testing::IsEmpty());
}

TEST_F(LiveScopeTest, anEmergencyAndTheMilitaryAreToldByShapeToo)
{
    Aircraft military = at("military", 10, 90);
    show({at("military", 10, 90)});
    const QPointF place = scope.placeOf("military").value();
    const QPointF ofDiamond = place + QPointF{4.5, 4.5};
    const QPointF ofTriangle = place + QPointF{0, 7};
    EXPECT_FALSE(isInkAt(ofDiamond));
    EXPECT_FALSE(isInkAt(ofTriangle + QPointF{-7, 0}));
    military.dbFlags = 1;
    show({military});
    EXPECT_TRUE(isInkAt(ofDiamond));
    military.squawk = "7700";
    show({military});
    EXPECT_FALSE(isInkAt(ofDiamond, 0));
    EXPECT_TRUE(isInkAt(ofTriangle + QPointF{-7, 0}));
}

TEST_F(LiveScopeTest, aTrailLeadsToWhereTheAircraftIs)
{
    Aircraft aircraft{.hex = "a", .track = 0, .lat = 51.5, .lon = 0.2};
    show({aircraft}, Date{12h});
    const QPointF before = scope.placeOf("a").value();
    aircraft.lat = 51.7;
    show({aircraft}, Date{12h + 1min});
    const QPointF after = scope.placeOf("a").value();
    EXPECT_LT(after.y(), before.y() - 40);
    const QPointF middle = (before + after) / 2;
    EXPECT_TRUE(isInkAt(middle));
    aircraft.lat = 51.3;
    show({aircraft}, Date{12h + 30min});
    EXPECT_FALSE(isInkAt((after + scope.placeOf("a").value()) / 2 + QPointF{0, 20}))
        << "nobody looked meanwhile";
    EXPECT_TRUE(isInkAt(middle));
}

TEST_F(LiveScopeTest, aTrailFromBeyondTheOuterRingIsNotDrawnAlongIt)
{
    Aircraft aircraft{.hex = "a", .track = 0, .lat = 51.5, .lon = 0.9};
    show({aircraft}, Date{12h});
    const QImage alone = picture();
    aircraft.lat = 52.2;
    aircraft.lon = 0.05; // Beside the cross.
    show({aircraft}, Date{12h + 1min});
    aircraft.lat = 51.7;
    show({aircraft}, Date{12h + 2min});
    const QPointF now = scope.placeOf("a").value();
    EXPECT_FALSE(isInkAt(now - QPointF{0, 30})) << "from the ring";
    const QPointF onRing{200 + 0.94 * 190 * 0.7, 200 - 0.94 * 190 * 0.7};
    EXPECT_EQ(picture().pixelColor(onRing.toPoint()), alone.pixelColor(onRing.toPoint()));
}

TEST_F(LiveScopeTest, theMapLiesUnderTheTrailsAndGoesWithItsSwitch)
{
    show({at("near", 10, 45)});
    const QImage without = picture();
    scope.setMapShown(true);
    ASSERT_TRUE(test::waitFor([&] { return picture() != without; }, 20s));
    const QImage with = picture();
    EXPECT_EQ(with.pixelColor(scope.placeOf("near").value().toPoint()),
        without.pixelColor(scope.placeOf("near").value().toPoint()));
    scope.setMapShown(false);
    EXPECT_EQ(picture(), without);
}

TEST_F(LiveScopeTest, aScreenReaderFindsEachAircraftAndOpensIt)
{
    Aircraft military = at("military", 10, 90);
    military.flight = "RCH285";
    military.dbFlags = 1;
    show({at("one", 5, 0), military});
    const auto* const accessible = QAccessible::queryAccessibleInterface(&scope);
    ASSERT_NE(accessible, nullptr);
    EXPECT_EQ(accessible->text(QAccessible::Name), "Radar scope");
    EXPECT_EQ(accessible->text(QAccessible::Description), "RCH285: Military");
    ASSERT_EQ(accessible->childCount(), 2);
    auto* const child = accessible->child(1);
    EXPECT_EQ(child->role(), QAccessible::Link);
    EXPECT_EQ(child->text(QAccessible::Name), "RCH285, Military, US Air Mobility Command, 18.5 km");
    child->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_THAT(opened, ElementsAre("military"));
}

TEST_F(LiveScopeTest, whatIsNoLongerThereIsNoLongerMarked)
{
    show({at("one", 5, 0), at("two", 10, 90)});
    scope.select("two");
    EXPECT_EQ(scope.focusedLink(), 1U);
    show({at("one", 5, 0)});
    EXPECT_EQ(scope.focusedLink(), std::nullopt);
    show({at("two", 10, 90)});
    EXPECT_EQ(scope.focusedLink(), 0U);
}

TEST_F(LiveScopeTest, aThousandAircraftFollowThePointerWithoutAStall)
{
    std::vector<Aircraft> many;
    for (int index = 0; index < 1000; ++index) {
        Aircraft aircraft = at("a" + std::to_string(index), 0, 0);
        aircraft.distanceNM.reset();
        aircraft.directionDeg.reset();
        aircraft.lat = 51.2 + 0.0006 * index;
        aircraft.lon = -0.5 + 0.01 * (index % 73);
        many.push_back(aircraft);
    }
    for (int minute = 0; minute < 60; ++minute) {
        for (Aircraft& aircraft : many)
            *aircraft.lat += 0.002;
        SkyEntry entry = SkyEntry::around(std::nullopt, many);
        entry.date = Date{12h + std::chrono::minutes{minute}};
        trails.note(entry);
    }
    show(many, Date{13h});
    const auto milliseconds = [](std::clock_t from) {
        return static_cast<double>(std::clock() - from) * 1000 / static_cast<double>(CLOCKS_PER_SEC);
    };
    const std::clock_t begun = std::clock();
    const QImage first = picture();
    std::cout << "the picture of a new sky: " << milliseconds(begun) << " ms\n";
    double longest = 0;
    for (int x = 20; x < 380; x += 4) {
        const std::clock_t moved = std::clock();
        move({1.0 * x, 200});
        scope.grab();
        longest = std::max(longest, milliseconds(moved));
    }
    EXPECT_LT(longest, 16);
    QEvent left{QEvent::Leave};
    QApplication::sendEvent(&scope, &left);
    EXPECT_TRUE(test::waitFor([&] { return picture() != first; })) << "the other trails";
}

} // namespace skyvane
