#include "tests/companion/position/fake_location_service.h"
#include "tests/companion/settings/settings_page_fixture.h"

namespace skyvane {

namespace {

using test::london;

class LocateMeTest : public test::SettingsPageFixture { };

} // namespace

TEST_F(LocateMeTest, theSystemIsAskedWhereItIs)
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

TEST_F(LocateMeTest, whereTheSystemTakesOneToBeCanBeUndone)
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

TEST_F(LocateMeTest, theFirstHomeIsUndoneToNone)
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

TEST_F(LocateMeTest, aCoarseFixIsSaidWhileABetterOneIsWaitedFor)
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

TEST_F(LocateMeTest, whatTheServiceFailedAtIsForgottenWithTheNextChoice)
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

TEST_F(LocateMeTest, whyTheSystemDidNotSayIsSaidAtTheField)
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

} // namespace skyvane
