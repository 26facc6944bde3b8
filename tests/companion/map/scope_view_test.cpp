#include "companion/map/scope_view.h"

#include "tests/session/wait_for.h"

#include <gtest/gtest.h>

#include <QImage>

namespace skyvane {

namespace {

SkyEntry skyOver(double latitude, double longitude, double radiusNM)
{
    return {.date = {},
        .aircraft = {},
        .radiusNM = radiusNM,
        .home = HomeLocation{.latitude = latitude, .longitude = longitude, .label = "Home"},
        .isSample = false,
        .unit = "km"};
}

class ScopeViewTest : public testing::Test {
protected:
    ScopeViewTest() { scope.resize(300, 300); }

    void show(const SkyEntry& sky) { scope.showScope({.entry = sky}); }
    QImage shown() { return scope.grab().toImage(); }

    FontMeasurer fonts;
    ScopeView scope{fonts};
};

} // namespace

TEST_F(ScopeViewTest, theMapLiesUnderTheScopeWhereItIsWanted)
{
    show(skyOver(51.12, 1.33, 25));
    const QImage without = shown();
    scope.setMapShown(true);
    ASSERT_TRUE(test::waitFor([&] { return shown() != without; }, std::chrono::seconds{20}));
    scope.setMapShown(false);
    EXPECT_EQ(shown(), without);
}

TEST_F(ScopeViewTest, anyRadiusHasItsMap)
{
    scope.setMapShown(true);
    show(skyOver(51.12, 1.33, 25));
    scope.show();
    for (const double radiusNM : {1.0, 5.0, 100.0, 250.0, 1000.0}) {
        scope.setMapShown(false);
        show(skyOver(51.12, 1.33, radiusNM));
        const QImage without = shown();
        scope.setMapShown(true);
        EXPECT_TRUE(test::waitFor([&] { return shown() != without; }, std::chrono::seconds{20})) << radiusNM;
    }
}

TEST_F(ScopeViewTest, withoutAHomeOrARadiusThereIsNone)
{
    scope.setMapShown(true);
    for (const double radiusNM : {0.0, -1.0}) {
        show(skyOver(51.12, 1.33, radiusNM));
        const QImage with = shown();
        scope.setMapShown(false);
        EXPECT_EQ(shown(), with);
        scope.setMapShown(true);
    }
    SkyEntry nowhere = skyOver(0, 0, 25);
    nowhere.home.reset();
    show(nowhere);
    EXPECT_FALSE(shown().isNull());
}

} // namespace skyvane
