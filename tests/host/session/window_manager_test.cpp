#include "tests/host/desktop/desktop_fixture.h"

namespace skyvane {

namespace {

/// An ordinary window over the left part of the three widgets.
class OrdinaryWindow {
public:
    explicit OrdinaryWindow(const test::XSession& session) : m_session(session)
    {
        m_process.setProcessEnvironment(session.environment());
        m_process.setStandardOutputFile(QProcess::nullDevice());
        m_process.start("xev", {"-geometry", "600x600+540+100"});
        m_process.waitForStarted();
        EXPECT_TRUE(test::waitFor([&] { return isShown(); }));
    }
    ~OrdinaryWindow()
    {
        m_process.terminate();
        m_process.waitForFinished();
    }
    OrdinaryWindow(const OrdinaryWindow&) = delete;
    OrdinaryWindow& operator=(const OrdinaryWindow&) = delete;

    bool isShown() const { return !m_session.run("xdotool", words()).empty(); }
    unsigned long id() const { return std::stoul(m_session.run("xdotool", words())); }

private:
    static QStringList words() { return {"search", "--onlyvisible", "--name", "^Event Tester$"}; }

    const test::XSession& m_session;
    QProcess m_process;
};

class WindowManagerTest : public DesktopTest {
protected:
    using DesktopTest::DesktopTest;

    std::string active() const { return session.run("xdotool", {"getactivewindow"}); }
    void showDesktop(bool isShown) const { session.run("wmctrl", {"-k", isShown ? "on" : "off"}); }
    bool areAllShown() const { return session.windowsOf(host.processId()) == windows; }
    bool isOnTop(const OrdinaryWindow& window) const
    {
        return test::waitFor([&] {
            const auto stacking = session.stacking();
            return stacking.size() == 4 && stacking.back() == window.id();
        });
    }
};

class TilingManagerTest : public WindowManagerTest {
protected:
    TilingManagerTest() : WindowManagerTest("linked", test::WindowManager::i3) { }

    /// The window at the pointer, of those that lie on each other the highest.
    std::string underPointer() const
    {
        const auto text = session.run("xdotool", {"getmouselocation", "--shell"});
        return text.substr(text.find("WINDOW=") + 7);
    }

    bool isFocused(const std::string& window) const
    {
        return test::waitFor([&] { return session.run("xdotool", {"getwindowfocus"}) == window + "\n"; });
    }
};

} // namespace

TEST_F(WindowManagerTest, widgetsStayWhenTheDesktopIsShown)
{
    const OrdinaryWindow ordinary{session};
    ASSERT_TRUE(start(3));
    showDesktop(true);
    ASSERT_TRUE(test::waitFor([&] { return !ordinary.isShown(); }));
    EXPECT_TRUE(areAllShown());
    pointer({"mousemove", "300", "700", "click", "1"});
    EXPECT_TRUE(areAllShown());
    showDesktop(false);
    EXPECT_TRUE(isOnTop(ordinary));
}

TEST_F(WindowManagerTest, widgetsAppearBelowAnOrdinaryWindow)
{
    const OrdinaryWindow ordinary{session};
    ASSERT_TRUE(start(3));
    EXPECT_TRUE(isOnTop(ordinary));
}

TEST_F(WindowManagerTest, aClickOrADragTakesTheKeyboardFromNoWindow)
{
    const OrdinaryWindow ordinary{session};
    ASSERT_TRUE(start(3));
    session.run("wmctrl", {"-a", "Event Tester"});
    const std::string typedIn = std::to_string(ordinary.id()) + "\n";
    ASSERT_TRUE(test::waitFor([&] { return active() == typedIn; }));
    ASSERT_TRUE(test::waitFor([&] {
        pointer({"mousemove", "1240", "60", "click", "1"});
        return host.bytesAvailable() > 0;
    }));
    EXPECT_EQ(active(), typedIn);
    const auto before = HostFile{hostFile}.read();
    pointer({"mousemove", "1200", "60", "mousedown", "1", "mousemove", "1150", "500", "mousemove", "1152",
        "503", "mouseup", "1"});
    EXPECT_TRUE(test::waitFor([&] { return HostFile{hostFile}.read() != before; }));
    EXPECT_EQ(active(), typedIn);
    EXPECT_EQ(session.run("xdotool", {"getwindowfocus"}), typedIn);
    EXPECT_TRUE(isOnTop(ordinary));
}

TEST_F(WindowManagerTest, aMenuHearsTheKeyboardThatAnotherWindowHas)
{
    const OrdinaryWindow ordinary{session};
    ASSERT_TRUE(start(3));
    session.run("wmctrl", {"-a", "Event Tester"});
    ASSERT_TRUE(test::waitFor([&] { return active() == std::to_string(ordinary.id()) + "\n"; }));
    chooseFromMenu({1240, 60}, "q");
    EXPECT_TRUE(test::waitFor([&] { return host.state() == QProcess::NotRunning; }));
}

TEST_F(WindowManagerTest, aClickGivesAWidgetTheKeyboardThatNobodyHas)
{
    ASSERT_TRUE(start(3));
    EXPECT_TRUE(test::waitFor([&] {
        pointer({"mousemove", "1240", "60", "click", "2"});
        return active() == smallWindow() + "\n";
    }));
}

TEST_F(WindowManagerTest, theKeyboardLeadsFromWidgetToWidgetBelowOtherWindows)
{
    const OrdinaryWindow ordinary{session};
    ASSERT_TRUE(start(3));
    command({"focus"});
    const auto press = [&](const char* key) { session.run("xdotool", {"key", key}); };
    ASSERT_TRUE(test::waitFor([&] { return active() == smallWindow() + "\n"; }));
    EXPECT_TRUE(isOnTop(ordinary));
    EXPECT_TRUE(test::waitFor([&] {
        press("Tab");
        return active() != smallWindow() + "\n";
    }));
    EXPECT_TRUE(isOnTop(ordinary));
    press("Return");
    EXPECT_TRUE(test::waitFor([&] { return host.bytesAvailable() > 0; }));
}

TEST_F(WindowManagerTest, widgetsTakeNoRoomFromOtherWindows)
{
    const QStringList workArea{"-root", "_NET_WORKAREA"};
    const std::string before = session.run("xprop", workArea);
    ASSERT_TRUE(start(3));
    EXPECT_EQ(session.run("xprop", workArea), before);
    for (const std::string& window : windows)
        EXPECT_EQ(session.run("xprop", {"-id", QString::fromStdString(window)}).find("_NET_WM_STRUT"),
            std::string::npos);
}

TEST_F(TilingManagerTest, widgetsAreWhereTheyAreRememberedAndBelowTheTiles)
{
    ASSERT_TRUE(startUnmanaged(3));
    EXPECT_TRUE(isAt(smallWindow(), {1086, 24, 170, 170}));
    ASSERT_TRUE(test::waitFor([&] {
        pointer({"mousemove", "1171", "60", "click", "1"});
        return host.bytesAvailable() > 0;
    }));
    EXPECT_EQ(underPointer(), smallWindow() + "\n");
    const OrdinaryWindow tile{session};
    EXPECT_TRUE(test::waitFor([&] { return underPointer() != smallWindow() + "\n"; }));
    EXPECT_TRUE(isAt(smallWindow(), {1086, 24, 170, 170}));
}

TEST_F(TilingManagerTest, theKeyboardIsGivenToAWidgetThatNobodyManages)
{
    ASSERT_TRUE(startUnmanaged(3));
    ASSERT_TRUE(test::waitFor([&] { return !command({"list", "--placed"}).empty(); }));
    command({"focus"});
    EXPECT_TRUE(isFocused(smallWindow()));
    session.run("xdotool", {"key", "Return"});
    EXPECT_TRUE(test::waitFor([&] { return host.bytesAvailable() > 0; }));
}

} // namespace skyvane
