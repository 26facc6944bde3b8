#include "tests/companion/program_fixture.h"
#include "tests/session/accessible_session.h"

#include <gmock/gmock.h>

#include <functional>
#include <optional>
#include <set>

namespace skyvane {

namespace {

using test::AccessibleObject;
using testing::Contains;
using testing::Pair;

/// The built program as a screen reader finds it.
class AccessibleProgram : public test::CompanionProgram {
protected:
    using Visit = std::function<void(const AccessibleObject&)>;

    /// Every part of the window that is on the screen.
    static void forEach(const AccessibleObject& object, const Visit& visit)
    {
        visit(object);
        for (const AccessibleObject& child : object.children()) {
            if (!child.frame().isEmpty())
                forEach(child, visit);
        }
    }

    std::optional<AccessibleObject> frame(const std::string& title) const
    {
        std::optional<AccessibleObject> found;
        test::waitFor([&] {
            for (const AccessibleObject& program : reader.programs()) {
                for (const AccessibleObject& window : program.children()) {
                    if (window.name() == title + " – Skyvane")
                        found = window;
                }
            }
            return found.has_value();
        });
        return found;
    }

    /// Role and name.
    static std::vector<std::pair<std::string, std::string>> said(const AccessibleObject& window)
    {
        std::vector<std::pair<std::string, std::string>> parts;
        forEach(window, [&](const AccessibleObject& part) { parts.emplace_back(part.role(), part.name()); });
        return parts;
    }

    test::AccessibleSession reader{session};
};

} // namespace

TEST_F(AccessibleProgram, theSkyIsAFrameInWhichEachAircraftIsReadAndOpened)
{
    start(first);
    const auto sky = frame("The sky over Home");
    ASSERT_TRUE(sky);
    EXPECT_EQ(sky->role(), "frame");
    std::optional<AccessibleObject> military;
    const std::string name
        = "RCH285, Military, Boeing C-17 Globemaster III, US Air Mobility Command, 16.9 km, 24,000 ft";
    ASSERT_TRUE(test::waitFor([&] {
        forEach(*sky, [&](const AccessibleObject& part) {
            if (part.role() == "link" && part.name() == name)
                military = part;
        });
        return military.has_value();
    }));
    const auto parts = said(*sky);
    EXPECT_THAT(parts, Contains(Pair("text", "Filter")));
    EXPECT_THAT(parts, Contains(Pair("cell", "RCH285, Military")));
    EXPECT_THAT(parts, Contains(Pair("check box", "Map below the scope")));
    military->doAction(0);
    EXPECT_TRUE(isCalled("RCH285"));
}

TEST_F(AccessibleProgram, everyControlOfEveryPageHasAName)
{
    const std::set<std::string> controls{"push button", "button", "check box", "radio button", "text",
        "entry", "spin button", "combo box", "slider", "toggle button", "menu item"};
    start(first);
    const auto expectNames = [&](const std::string& title) {
        const auto page = frame(title);
        ASSERT_TRUE(page) << title;
        for (const auto& [role, name] : said(*page))
            EXPECT_FALSE(name.empty() && controls.contains(role)) << title << ": " << role;
    };
    expectNames("The sky over Home");
    press("ctrl+t");
    expectNames("Tell me when…");
    press("ctrl+comma");
    expectNames("Settings");
    EXPECT_THAT(said(*frame("Settings")), Contains(Pair("radio button", "Peach")));
}

} // namespace skyvane
