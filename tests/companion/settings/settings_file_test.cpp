#include "companion/settings/settings_file.h"

#include "platform/files/files.h"
#include "platform/pinned.h"
#include "tests/session/wait_for.h"
#include "tests/support/scratch_folder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace skyvane {

namespace {

using namespace std::chrono_literals;

SharedState::Config homeNamed(const std::string& label)
{
    return {.home = {.latitude = 51.5, .longitude = -0.12, .label = label}, .radiusNM = 25};
}

class SettingsFileTest : public testing::Test {
protected:
    /// The next word of a change, waited for.
    bool isTold()
    {
        return test::waitFor([&] { return std::exchange(m_changes, 0) > 0; });
    }

    void listen(SettingsFile& file)
    {
        QObject::connect(&file, &SettingsFile::changedByOthers, [this] { ++m_changes; });
    }

    test::ScratchFolder scratch;
    Pinned<HomeFolder> home{{.path = scratch.path()}};
    int m_changes = 0;
};

} // namespace

TEST_F(SettingsFileTest, holdsWhatWasThereFromTheBeginning)
{
    EXPECT_EQ(SettingsFile{10ms}.content(), std::nullopt);
    SharedState::write(homeNamed("Home"));
    EXPECT_EQ(SettingsFile{10ms}.content(), homeNamed("Home"));
}

TEST_F(SettingsFileTest, tellsOfAFileThatOthersMakeChangeAndRemove)
{
    SettingsFile file{10ms};
    listen(file);
    for (const char* label : {"First", "Second"}) {
        SharedState::write(homeNamed(label));
        ASSERT_TRUE(isTold());
        EXPECT_EQ(file.content(), homeNamed(label));
    }
    std::filesystem::remove_all(scratch.path() / "Library");
    ASSERT_TRUE(isTold());
    EXPECT_EQ(file.content(), std::nullopt);
    SharedState::write(homeNamed("Third"));
    ASSERT_TRUE(isTold());
    EXPECT_EQ(file.content(), homeNamed("Third"));
}

TEST_F(SettingsFileTest, tellsOfAFileThatIsWrittenInPlace)
{
    SharedState::write(homeNamed("Home"));
    SettingsFile file{10ms};
    listen(file);
    std::ofstream{SharedState::directory() / "widget-config.json"}
        << R"({"home":{"latitude":1,"longitude":2,"label":"X"},"radiusNM":10})";
    ASSERT_TRUE(test::waitFor([&] { return file.content() && file.content()->home.label == "X"; }));
    EXPECT_TRUE(isTold());
}

TEST_F(SettingsFileTest, saysNothingOfItsOwnWriting)
{
    SettingsFile file{10ms};
    listen(file);
    EXPECT_TRUE(file.write(homeNamed("Home")));
    EXPECT_EQ(SharedState::read(), homeNamed("Home"));
    EXPECT_EQ(file.content(), homeNamed("Home"));
    EXPECT_FALSE(test::waitFor([&] { return m_changes > 0; }, 150ms));
    EXPECT_TRUE(file.write(std::nullopt));
    EXPECT_EQ(SharedState::read(), std::nullopt);
    EXPECT_FALSE(test::waitFor([&] { return m_changes > 0; }, 150ms));
}

TEST_F(SettingsFileTest, knowsWhenWritingDidNotTake)
{
    std::ofstream{scratch.path() / "Library"} << "a file where a folder should be";
    SettingsFile file{10ms};
    EXPECT_FALSE(file.write(homeNamed("Home")));
    EXPECT_EQ(file.content(), std::nullopt);
}

} // namespace skyvane
