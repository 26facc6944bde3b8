#include "core/config/shared_state.h"
#include "platform/files/files.h"
#include "platform/pinned.h"
#include "tests/session/wait_for.h"
#include "tests/session/x_session.h"

#include <gtest/gtest.h>

namespace skyvane {

namespace {

/// The page in a window of its own, in a real session.
class SettingsKeyboardTest : public testing::Test {
protected:
    void SetUp() override
    {
        program.setProcessEnvironment(session.environment());
        program.start(SKYVANE_SETTINGS_PROGRAM, {QString::fromStdString(scratch.path().string()), "light"});
        ASSERT_TRUE(test::waitFor([&] { return session.windowsOf(program.processId()).size() == 1; }));
        const auto window = QString::fromStdString(session.windowsOf(program.processId()).front());
        ASSERT_TRUE(test::waitFor([&] {
            session.run("xdotool", {"windowfocus", window});
            return session.run("xdotool", {"getwindowfocus"}).starts_with(window.toStdString());
        }));
    }

    void TearDown() override
    {
        program.terminate();
        EXPECT_TRUE(program.waitForFinished(20000));
    }

    void press(const QStringList& keys) { session.run("xdotool", QStringList{"key"} + keys); }
    void type(const QString& text) { session.run("xdotool", {"type", "--delay", "20", text}); }

    bool isWritten(const std::function<bool(const SharedState::Config&)>& condition)
    {
        return test::waitFor([&] {
            const auto config = SharedState::read();
            return config && condition(*config);
        });
    }

    test::XSession session;
    test::ScratchFolder scratch;
    Pinned<HomeFolder> home{{.path = scratch.path()}};
    QProcess program;
};

} // namespace

TEST_F(SettingsKeyboardTest, fromTheFirstStartToAWrittenHomeWithKeysAlone)
{
    type("lisbon");
    press({"Return"});
    ASSERT_TRUE(isWritten([](const auto& config) { return config.home.label == "Lisbon"; }));
    press({"alt+n"});
    type("Casa");
    press({"Tab", "Tab", "Right", "Right"});
    ASSERT_TRUE(
        isWritten([](const auto& config) { return config.home.label == "Casa" && config.radiusNM == 27; }));
    press({"Tab", "Tab", "Right"});
    ASSERT_TRUE(isWritten([](const auto& config) { return config.distanceUnit == "km"; }));
    press({"Tab", "Tab", "Right"});
    ASSERT_TRUE(isWritten([](const auto& config) { return config.widgetColorHex == "#a8f53d"; }));
    press({"alt+r", "Left"});
    ASSERT_TRUE(isWritten([](const auto& config) { return config.radiusNM == 26; }));
    press({"alt+c", "Right"});
    ASSERT_TRUE(isWritten([](const auto& config) { return config.widgetColorHex == "#ffcca6"; }));
    press({"alt+i"});
    type("51.5, -0.12");
    press({"Return"});
    ASSERT_TRUE(isWritten([](const auto& config) {
        return config.home.latitude == 51.5 && config.home.longitude == -0.12 && config.home.label == "Casa";
    }));
}

} // namespace skyvane
