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

    /// Whether the three widgets come to be on view; where they stand is this compositor's choice.
    bool areShown() const
    {
        return test::waitFor([&] {
            std::vector<QSize> sizes;
            for (const QRect& frame : session.windows())
                sizes.push_back(frame.size());
            return sizes == std::vector<QSize>{{364, 382}, {364, 170}, {170, 170}};
        });
    }

    test::ScratchFolder folder;
    test::FakeExtension extension{"linked"};
    test::SwaySession session;
};

} // namespace

TEST_F(WaylandTest, theWidgetsAreShownThroughItsXServerWhateverScreensComeAlong)
{
    EXPECT_TRUE(areShown());
    session.tell({"create_output"});
    EXPECT_TRUE(test::waitFor([&] { return session.outputs().size() == 2; }));
    session.tell({"create_output"});
    EXPECT_TRUE(test::waitFor([&] { return session.outputs().size() == 3; }));
    EXPECT_TRUE(areShown());
    EXPECT_TRUE(test::waitFor([&] { return !extension.events("widgets.timelines").empty(); }));
}

} // namespace skyvane
