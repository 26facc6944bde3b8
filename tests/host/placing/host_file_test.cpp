#include "host/placing/host_file.h"

#include "tests/session/journal.h"
#include "tests/support/replaced.h"
#include "tests/support/scratch_folder.h"

#include <gmock/gmock.h>

#include <chrono>
#include <fstream>

namespace skyvane {

namespace {

using test::replaced;

const Arrangement two{.widgets{
    {
        .id = 1,
        .target = {.kind = "org.example.clock", .family = WidgetFamily::small},
        .placement = {.screen = "DP-1", .corner = ScreenCorner::topRight, .inset = {24, 32}},
    },
    {
        .id = 7,
        .target = {.kind = "org.example.moon", .family = WidgetFamily::large},
        .placement = {.screen = "Größe \"24\"", .corner = ScreenCorner::bottomLeft, .inset = {0, -8}},
    },
}};

class HostFileTest : public testing::Test {
protected:
    void put(const std::string& text) const { std::ofstream{path} << text; }

    static std::string contents(const std::filesystem::path& file)
    {
        std::ifstream stream{file};
        return {std::istreambuf_iterator<char>{stream}, {}};
    }

    test::ScratchFolder folder;
    std::filesystem::path path = folder.path() / "host.json";
    test::Journal journal;
};

} // namespace

TEST(Arrangement, whatIsWrittenIsRead)
{
    EXPECT_EQ(Arrangement::decoded(two.encoded()), two);
    EXPECT_EQ(Arrangement::decoded(Arrangement{}.encoded()), Arrangement{});
    Arrangement locked = two;
    locked.isLocked = true;
    locked.widgets.front().placement.identity = "Maker Model 17";
    locked.widgets.front().placement.area = {1920, 1050};
    EXPECT_EQ(Arrangement::decoded(locked.encoded()), locked);
}

TEST(Arrangement, theFileOfAnEarlierVersionIsRead)
{
    EXPECT_EQ(Arrangement::decoded(R"({"version": 1, "widgets": [{"id": 1, "kind": "org.example.clock",
        "family": "small", "screen": "DP-1", "corner": "topRight", "x": 24, "y": 32}]})"),
        (Arrangement{.widgets = {two.widgets.front()}}));
}

TEST(Arrangement, anotherShapeIsAbsent)
{
    const std::string good = two.encoded();
    EXPECT_EQ(Arrangement::decoded(""), std::nullopt);
    EXPECT_EQ(Arrangement::decoded("[]"), std::nullopt);
    EXPECT_EQ(Arrangement::decoded(good.substr(0, good.size() / 2)), std::nullopt);
    EXPECT_EQ(Arrangement::decoded(replaced(good, "\"version\": 1", "\"version\": 2")), std::nullopt);
    EXPECT_EQ(Arrangement::decoded(replaced(good, "\"id\": 7", "\"id\": 1")), std::nullopt);
    EXPECT_EQ(Arrangement::decoded(replaced(good, "\"id\": 7", "\"id\": 0")), std::nullopt);
    EXPECT_EQ(Arrangement::decoded(replaced(good, "topRight", "middle")), std::nullopt);
    EXPECT_EQ(Arrangement::decoded(replaced(good, "small", "tiny")), std::nullopt);
    EXPECT_EQ(Arrangement::decoded(replaced(good, "\"x\": 24", "\"x\": 1e18")), std::nullopt);
}

TEST_F(HostFileTest, aMissingFileIsTheFirstStartAndItsFolderIsMade)
{
    path = folder.path() / "skyvane/host.json";
    HostFile file{path};
    EXPECT_EQ(file.read(), std::nullopt);
    file.write(two);
    EXPECT_EQ(file.read(), two);
    EXPECT_TRUE(test::Journal::lines().empty());
}

TEST_F(HostFileTest, whatAKilledHostLeftIsRemovedAtTheStart)
{
    put(two.encoded());
    const auto draft = folder.path() / ".host.json.aB3xYz";
    std::ofstream{draft} << "draft";
    std::filesystem::last_write_time(
        draft, std::filesystem::file_time_type::clock::now() - std::chrono::hours{1});
    EXPECT_EQ(HostFile{path}.read(), two);
    EXPECT_FALSE(std::filesystem::exists(draft));
}

TEST_F(HostFileTest, aBrokenFileIsSetAsideWithOneLine)
{
    put("{\"version\":");
    HostFile file{path};
    EXPECT_EQ(file.read(), std::nullopt);
    EXPECT_EQ(contents(path.string() + ".broken"), "{\"version\":");
    EXPECT_THAT(test::Journal::lines(),
        testing::ElementsAre(
            path.string() + " cannot be understood and is now " + path.string() + ".broken"));
    file.write(two);
    EXPECT_EQ(file.read(), two);
}

TEST_F(HostFileTest, anEarlierBrokenFileIsKeptToo)
{
    for (const char* text : {"first", "second"}) {
        put(text);
        HostFile{path}.read();
    }
    EXPECT_EQ(contents(path.string() + ".broken"), "first");
    EXPECT_EQ(contents(path.string() + ".broken-2"), "second");
}

TEST_F(HostFileTest, aFileThatCannotBeWrittenIsALine)
{
    put("in the way of a folder");
    HostFile file{path / "host.json"};
    file.write(two);
    EXPECT_EQ(test::Journal::lines().size(), 1U);
}

} // namespace skyvane
