#include "tests/host/desktop/desktop_fixture.h"
#include "tests/session/accessible_session.h"

#include <gmock/gmock.h>

namespace skyvane {

namespace {

using testing::ElementsAre;

/// One widget whose window is read as a screen reader reads it.
class AccessibleWidgetTest : public DesktopTest {
protected:
    AccessibleWidgetTest() : DesktopTest("worded")
    {
        HostFile{hostFile}.write(
            {.widgets = {{
                 .id = 1,
                 .target = {.kind = "org.example.clock", .family = WidgetFamily::small},
                 .placement = {.screen = {}, .corner = ScreenCorner::topLeft, .inset = {96, 48}},
             }}});
    }

    /// The widget's window, once it has so many parts.
    bool findWindow(std::size_t parts)
    {
        return test::waitFor([&] {
            for (const test::AccessibleObject& program : reader.programs()) {
                for (const test::AccessibleObject& candidate : program.children()) {
                    if (candidate.name() == "Clock" && candidate.children().size() == parts)
                        window = candidate;
                }
            }
            return window.has_value();
        });
    }

    test::AccessibleSession reader{session};
    std::optional<test::AccessibleObject> window;
};

} // namespace

TEST_F(AccessibleWidgetTest, linksAndRowsAreReadAndPressed)
{
    ASSERT_TRUE(start(1));
    ASSERT_TRUE(findWindow(3));
    const auto parts = window->children();
    EXPECT_THAT((std::vector{parts[0].name(), parts[1].name(), parts[2].name()}),
        ElementsAre("Two aircraft", "BAW123", "DLH456"));
    EXPECT_THAT((std::vector{parts[0].role(), parts[1].role(), parts[2].role()}),
        ElementsAre("label", "link", "link"));
    EXPECT_EQ(window->role(), "frame");
    EXPECT_TRUE(test::waitFor([&] { return window->frame() == QRect{96, 48, 170, 170}; }));
    for (const test::AccessibleObject& part : parts)
        EXPECT_TRUE(window->frame().contains(part.frame())) << part.name();
    EXPECT_LT(parts[1].frame().bottom(), parts[2].frame().top() + 2);

    EXPECT_THAT(parts[0].actions(), ElementsAre());
    EXPECT_THAT(parts[2].actions(), ElementsAre("Press"));
    parts[2].doAction(0);
    EXPECT_TRUE(test::waitFor([&] { return host.bytesAvailable() > 0; }));
    EXPECT_EQ(host.readLine(), "skyvane://aircraft/second\n");
    window->doAction(0);
    EXPECT_TRUE(test::waitFor([&] { return host.bytesAvailable() > 0; }));
    EXPECT_EQ(host.readLine(), "skyvane://open\n");
}

} // namespace skyvane
