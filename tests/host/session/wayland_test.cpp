#include "tests/host/extension/fake_extension.h"
#include "tests/session/sway_session.h"
#include "tests/session/wait_for.h"

#include <gtest/gtest.h>

namespace skyvane {

namespace {

class WaylandTest : public testing::Test {
protected:
    WaylandTest()
    {
        std::ofstream{folder.path() / "widget-config.json"} << "{}";
        const auto path
            = [](const std::filesystem::path& file) { return QString::fromStdString(file.string()); };
        session.start(SKYVANE_DESKTOP_PROGRAM,
            {path(extension.program().path), path(folder.path() / "host.json"),
                path(folder.path() / "widget-config.json")});
    }

    test::ScratchFolder folder;
    test::FakeExtension extension{"linked"};
    test::SwaySession session;
};

} // namespace

/// It gives them no place below the others, and would put all three in the middle of the screen.
TEST_F(WaylandTest, whereXWindowsAreTheCompositorsToPlaceWordsAreShownAndNoWidgets)
{
    EXPECT_TRUE(test::waitFor([&] { return session.windows().size() == 1; }));
    session.tell({"create_output"});
    EXPECT_TRUE(test::waitFor([&] { return session.outputs().size() == 2; }));
    EXPECT_EQ(session.windows().size(), 1U);
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "host.json"));
    EXPECT_TRUE(extension.events("widgets.timelines").empty());
    session.tell({"[title=.*]", "kill"});
    EXPECT_TRUE(test::waitFor([&] { return session.windows().empty(); }));
}

} // namespace skyvane
