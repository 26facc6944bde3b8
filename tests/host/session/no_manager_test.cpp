#include "tests/host/desktop/desktop_fixture.h"

#include <gmock/gmock.h>

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
        const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(m_connection.get())).data->root;
        xcb_change_window_attributes(m_connection.get(), root, XCB_CW_EVENT_MASK, &mask);
        xcb_flush(m_connection.get());
    }

    /// Whether this window was spoken of, with these first words.
    bool hold(const std::string& type, std::uint32_t window, std::array<std::uint32_t, 3> words)
    {
        listen();
        const xcb_atom_t wanted = atom(type);
        return std::ranges::any_of(m_events, [&](const auto& event) {
            const auto* message = reinterpret_cast<const xcb_client_message_event_t*>(event.get());
            return (event->response_type & 0x7F) == XCB_CLIENT_MESSAGE && message->type == wanted
                && message->window == window && std::ranges::equal(words, std::span{message->data.data32, 3});
        });
    }

    /// Says in the manager's place what it can do.
    void support(const std::vector<std::string>& abilities)
    {
        std::vector<xcb_atom_t> atoms;
        atoms.reserve(abilities.size());
        for (const std::string& ability : abilities)
            atoms.push_back(atom(ability));
        xcb_connection_t* connection = m_connection.get();
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE,
            xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root, atom("_NET_SUPPORTED"),
            XCB_ATOM_ATOM, 32, static_cast<std::uint32_t>(atoms.size()), atoms.data());
        xcb_flush(connection);
    }

    /// The announcement of a start (startup notification), its pieces put together.
    std::string startup()
    {
        listen();
        const std::array types{atom("_NET_STARTUP_INFO_BEGIN"), atom("_NET_STARTUP_INFO")};
        std::string text;
        for (const auto& event : m_events) {
            const auto* message = reinterpret_cast<const xcb_client_message_event_t*>(event.get());
            if ((event->response_type & 0x7F) == XCB_CLIENT_MESSAGE && message->format == 8
                && std::ranges::find(types, message->type) != types.end())
                text.append(reinterpret_cast<const char*>(message->data.data8), sizeof message->data.data8);
        }
        return text.substr(0, text.find('\0'));
    }

private:
    void listen()
    {
        while (auto* event = xcb_poll_for_event(m_connection.get()))
            m_events.emplace_back(event, &std::free);
    }

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

/// The test hears what a window manager would.
class NoManagerTest : public DesktopTest {
protected:
    NoManagerTest() : DesktopTest("linked", test::WindowManager::none)
    {
        session.set("SHOWS_TOKENS", "yes");
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

TEST_F(NoManagerTest, aClickIsAnnouncedToWhoeverRaisesWhatItOpens)
{
    click();
    const std::string line = host.readLine().toStdString();
    const std::string token = line.substr(line.find(' ') + 1, line.find('\n') - line.find(' ') - 1);
    EXPECT_THAT(token, testing::MatchesRegex("skyvane-[0-9]+-1_TIME[1-9][0-9]*"));
    EXPECT_TRUE(test::waitFor([&] { return requests.startup().starts_with("new: ID=" + token + " "); }))
        << requests.startup();
}

TEST_F(NoManagerTest, anotherManagerHasItsOwnKindOfWindows)
{
    const auto isUnmanaged = [&] {
        return session.run("xwininfo", {"-id", QString::fromStdString(smallWindow())})
                   .find("Override Redirect State: yes")
            != std::string::npos;
    };
    EXPECT_FALSE(isUnmanaged());
    requests.support({"_NET_WM_STATE"});
    EXPECT_TRUE(test::waitFor([&] { return hasWindows(3) && isUnmanaged(); }));
    requests.support({"_NET_WM_STATE_BELOW", "_NET_SHOWING_DESKTOP"});
    EXPECT_TRUE(test::waitFor([&] { return hasWindows(3) && !isUnmanaged(); }));
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
