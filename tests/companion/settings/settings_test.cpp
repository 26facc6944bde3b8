#include "companion/settings/settings.h"

#include "platform/files/files.h"
#include "platform/pinned.h"
#include "platform/text/locale.h"
#include "tests/session/wait_for.h"
#include "tests/support/scratch_folder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace skyvane {

namespace {

using namespace std::chrono_literals;
using Settled = Settings::Settled;

constexpr Settings::Pace quick{.choosing = 20ms, .typing = 40ms, .calm = 10ms};

SharedState::Config aroundLondon()
{
    return {.home = {.latitude = 51.5, .longitude = -0.12, .label = "London"},
        .radiusNM = 25,
        .distanceUnit = "mi"};
}

class SettingsTest : public testing::Test {
protected:
    /// With all signals counted.
    Settings& start(const Settings::Pace& pace = quick)
    {
        m_settings.emplace(pace);
        QObject::connect(&*m_settings, &Settings::written, [this] { ++writes; });
        QObject::connect(&*m_settings, &Settings::failedToWrite, [this] { ++failures; });
        return *m_settings;
    }

    void end() { m_settings.reset(); }

    void chooseRadius(double radiusNM, Settled settled = Settled::soon)
    {
        SettingsDraft draft = m_settings->draft();
        draft.radiusNM = radiusNM;
        m_settings->choose(draft, settled);
    }

    test::ScratchFolder scratch;
    Pinned<HomeFolder> home{{.path = scratch.path()}};
    Pinned<Locale> locale{{.numbers = "de_DE", .times = "de_DE", .timeZone = "UTC"}};
    int writes = 0;
    int failures = 0;

private:
    std::optional<Settings> m_settings;
};

} // namespace

TEST_F(SettingsTest, beginWithWhatIsUsualWhereTheUserLives)
{
    EXPECT_EQ(start().draft(), (SettingsDraft{.label = "Home", .radiusNM = 25, .unit = "km"}));
    const Pinned<Locale> american{{.numbers = "en_US", .times = "en_US", .timeZone = {}}};
    EXPECT_EQ(start().draft().unit, "mi");
}

TEST_F(SettingsTest, beginWithTheFile)
{
    SharedState::write(aroundLondon());
    EXPECT_EQ(start().draft(), SettingsDraft::of(aroundLondon()));
}

TEST_F(SettingsTest, aChoiceIsWrittenSoonAndOnce)
{
    SharedState::write(aroundLondon());
    start();
    for (const double radiusNM : {30.0, 35.0, 40.0})
        chooseRadius(radiusNM);
    EXPECT_EQ(SharedState::read(), aroundLondon());
    ASSERT_TRUE(test::waitFor([&] { return writes > 0; }));
    EXPECT_EQ(SharedState::read()->radiusNM, 40);
    EXPECT_EQ(writes, 1);
}

TEST_F(SettingsTest, aSliderThatIsHeldWritesWhenItIsLetGo)
{
    SharedState::write(aroundLondon());
    Settings& settings = start();
    chooseRadius(30, Settled::whenTold);
    EXPECT_FALSE(test::waitFor([&] { return writes > 0; }, 200ms));
    settings.settle();
    EXPECT_EQ(writes, 1);
    EXPECT_EQ(SharedState::read()->radiusNM, 30);
}

TEST_F(SettingsTest, nothingIsWrittenWithoutAHome)
{
    start();
    chooseRadius(30);
    EXPECT_FALSE(test::waitFor([&] { return writes > 0; }, 200ms));
    EXPECT_FALSE(std::filesystem::exists(SharedState::directory()));
}

TEST_F(SettingsTest, whatIsNotWrittenYetIsAtTheEnd)
{
    SharedState::write(aroundLondon());
    start({.choosing = 1h, .typing = 1h, .calm = 10ms});
    chooseRadius(30);
    end();
    EXPECT_EQ(SharedState::read()->radiusNM, 30);
}

TEST_F(SettingsTest, whatOthersWriteIsFollowed)
{
    SharedState::write(aroundLondon());
    const Settings& settings = start();
    SharedState::Config changed = aroundLondon();
    changed.home.label = "Away";
    SharedState::write(changed);
    EXPECT_TRUE(test::waitFor([&] { return settings.draft().label == "Away"; }));
}

TEST_F(SettingsTest, whatOthersWroteMeanwhileIsNotOverwritten)
{
    SharedState::write(aroundLondon());
    Settings& settings = start({.choosing = 1h, .typing = 1h, .calm = 1h});
    chooseRadius(30);
    SharedState::Config changed = aroundLondon();
    changed.home.label = "Away";
    changed.widgetColorHex = "#ffb000";
    SharedState::write(changed);
    settings.settle();
    changed.radiusNM = 30;
    EXPECT_EQ(SharedState::read(), changed);
    EXPECT_EQ(settings.draft(), SettingsDraft::of(changed));
}

TEST_F(SettingsTest, aFileThatIsRemovedIsNotWrittenAgainByAnotherChoice)
{
    SharedState::write(aroundLondon());
    Settings& settings = start();
    SharedState::clear();
    ASSERT_TRUE(test::waitFor([&] { return !settings.draft().place; }));
    chooseRadius(30);
    settings.settle();
    EXPECT_EQ(SharedState::read(), std::nullopt);
    EXPECT_EQ(writes, 0);
}

TEST_F(SettingsTest, aFailureIsToldAndTriedAgainWithTheNextChoice)
{
    const auto library = scratch.path() / "Library";
    std::ofstream{library} << "a file where a folder should be";
    Settings& settings = start();
    settings.choose(SettingsDraft::of(aroundLondon()));
    ASSERT_TRUE(test::waitFor([&] { return failures == 1; }));
    EXPECT_EQ(settings.draft(), SettingsDraft::of(aroundLondon()));
    std::filesystem::remove(library);
    chooseRadius(26);
    ASSERT_TRUE(test::waitFor([&] { return writes == 1; }));
    EXPECT_EQ(SharedState::read()->home, aroundLondon().home);
}

TEST_F(SettingsTest, aForgottenHomeIsGoneWithItsName)
{
    SharedState::write(aroundLondon());
    Settings& settings = start();
    settings.forgetHome();
    EXPECT_EQ(SharedState::read(), std::nullopt);
    EXPECT_EQ(settings.draft(), (SettingsDraft{.label = "Home", .radiusNM = 25, .unit = "mi"}));
    EXPECT_EQ(writes, 1);
    chooseRadius(30);
    EXPECT_FALSE(test::waitFor([&] { return writes > 1; }, 100ms));
}

} // namespace skyvane
