#include "tests/host/desktop/desktop_fixture.h"

#include <array>
#include <memory>
#include <span>
#include <xcb/xcb.h>

namespace skyvane {

namespace {

/// What any client asks of the window manager, as the manager itself hears it.
class Requests {
public:
    explicit Requests(const QString& display)
        : m_connection(xcb_connect(display.toUtf8().constData(), nullptr), &xcb_disconnect)
    {
        const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(m_connection.get())).data->root;
        xcb_change_window_attributes(m_connection.get(), root, XCB_CW_EVENT_MASK, &mask);
        xcb_flush(m_connection.get());
    }

    /// Whether this window was spoken of, with these first words.
    bool hold(const std::string& type, std::uint32_t window, std::array<std::uint32_t, 3> words)
    {
        while (auto* event = xcb_poll_for_event(m_connection.get()))
            m_events.emplace_back(event, &std::free);
        const xcb_atom_t wanted = atom(type);
        return std::ranges::any_of(m_events, [&](const auto& event) {
            const auto* message = reinterpret_cast<const xcb_client_message_event_t*>(event.get());
            return (event->response_type & 0x7F) == XCB_CLIENT_MESSAGE && message->type == wanted
                && message->window == window && std::ranges::equal(words, std::span{message->data.data32, 3});
        });
    }

private:
    xcb_atom_t atom(const std::string& name)
    {
        const auto cookie
            = xcb_intern_atom(m_connection.get(), 0, static_cast<std::uint16_t>(name.size()), name.c_str());
        const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply{
            xcb_intern_atom_reply(m_connection.get(), cookie, nullptr), &std::free};
        return reply->atom;
    }

    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> m_connection;
    std::vector<std::unique_ptr<xcb_generic_event_t, decltype(&std::free)>> m_events;
};

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
};

/// The test hears what a window manager would.
class NoManagerTest : public WindowManagerTest {
protected:
    NoManagerTest() : WindowManagerTest("linked", test::WindowManager::none)
    {
        host.setProcessEnvironment(session.environment());
        host.start(
            SKYVANE_DESKTOP_PROGRAM, {path(extension.program().path), path(hostFile), path(configuration)});
        EXPECT_TRUE(hasWindows(3));
        small = static_cast<std::uint32_t>(std::stoul(smallWindow()));
    }

    /// Until it is heard.
    void click()
    {
        EXPECT_TRUE(test::waitFor([&] {
            pointer({"mousemove", "1171", "60", "click", "1"});
            return host.bytesAvailable() > 0;
        }));
    }

    bool isAskedForKeyboard() { return requests.hold("_NET_ACTIVE_WINDOW", small, {pager, 0, 0}); }
    bool isAskedForPlaceBelow()
    {
        return requests.hold("_NET_RESTACK_WINDOW", small, {pager, 0, XCB_STACK_MODE_BELOW});
    }

    static constexpr std::uint32_t pager = 2;
    Requests requests{session.environment().value("DISPLAY")};
    std::uint32_t small = 0;
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

TEST_F(WindowManagerTest, aClickGivesAWidgetTheKeyboardAndLeavesItBelow)
{
    const OrdinaryWindow ordinary{session};
    ASSERT_TRUE(start(3));
    for (const char* button : {"1", "2"}) {
        session.run("wmctrl", {"-a", "Event Tester"});
        ASSERT_TRUE(test::waitFor([&] { return active() == std::to_string(ordinary.id()) + "\n"; }));
        pointer({"mousemove", "1240", "60", "click", button});
        EXPECT_TRUE(test::waitFor([&] { return active() == smallWindow() + "\n"; }));
        EXPECT_TRUE(isOnTop(ordinary));
    }
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

TEST_F(TilingManagerTest, widgetsAreWhereTheyAreRememberedAndNoBars)
{
    constexpr int decoration = 40; // The manager's own, which is counted with a window's place.
    ASSERT_TRUE(start(3));
    EXPECT_TRUE(test::waitFor([&] {
        const QRect frame = session.frameOf(smallWindow());
        return frame.size() == QSize{170, 170}
        && (frame.topLeft() - QPoint{1086, 24}).manhattanLength() < decoration;
    }));
}

TEST_F(NoManagerTest, aWidgetThatAppearsAsksForAPlaceBelow)
{
    EXPECT_TRUE(test::waitFor([&] { return isAskedForPlaceBelow(); }));
    EXPECT_FALSE(isAskedForKeyboard());
}

TEST_F(NoManagerTest, aClickAsksForTheKeyboard)
{
    click();
    EXPECT_TRUE(test::waitFor([&] { return isAskedForKeyboard(); }));
}

TEST_F(NoManagerTest, aClickOnTheShownDesktopDoesNotAskForTheKeyboard)
{
    session.run(
        "xprop", {"-root", "-format", "_NET_SHOWING_DESKTOP", "32c", "-set", "_NET_SHOWING_DESKTOP", "1"});
    click();
    EXPECT_TRUE(isAskedForPlaceBelow());
    EXPECT_FALSE(isAskedForKeyboard());
}

} // namespace skyvane
