#include "tests/host/desktop/desktop_fixture.h"

#include <memory>
#include <xcb/xcb.h>

namespace skyvane {

namespace {

/// Claims, as a compositor does, to blend windows.
class Claim {
public:
    explicit Claim(const QString& display)
        : m_connection(xcb_connect(display.toUtf8().constData(), nullptr), &xcb_disconnect)
    {
        xcb_connection_t* connection = m_connection.get();
        const char name[] = "_NET_WM_CM_S0";
        const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> atom{
            xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 0, sizeof name - 1, name), nullptr),
            &std::free};
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
        const xcb_window_t window = xcb_generate_id(connection);
        xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, root, 0, 0, 1, 1, 0,
            XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_set_selection_owner(connection, window, atom->atom, XCB_CURRENT_TIME);
        xcb_flush(connection);
    }

private:
    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> m_connection;
};

class CompositingTest : public DesktopTest {
protected:
    /// Whether all windows come to be cut along their round corners, or not at all.
    bool areShaped(bool isWanted) const
    {
        return test::waitFor([&] {
            return std::all_of(windows.begin(), windows.end(), [&](const std::string& window) {
                const auto shape = session.run("xwininfo", {"-shape", "-id", QString::fromStdString(window)});
                return (shape.find("Window shape extents") != std::string::npos) == isWanted;
            });
        });
    }

    QString display() const { return session.environment().value("DISPLAY"); }
};

} // namespace

TEST_F(CompositingTest, whereNothingBlendsWindowsTheyAreCutUntilSomethingDoes)
{
    ASSERT_TRUE(start(3));
    EXPECT_TRUE(areShaped(true));
    {
        const Claim compositor{display()};
        EXPECT_TRUE(areShaped(false));
    }
    EXPECT_TRUE(areShaped(true));
}

TEST_F(CompositingTest, whatIsBlendedIsNotCut)
{
    const Claim compositor{display()};
    ASSERT_TRUE(start(3));
    EXPECT_TRUE(areShaped(false));
}

} // namespace skyvane
