#include "tests/host/desktop/desktop_fixture.h"
#include "tests/session/fake_portal.h"

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace skyvane {

namespace {

class GalleryLookTest : public DesktopTest {
protected:
    ~GalleryLookTest() override { QDBusConnection::disconnectFromBus(QStringLiteral("portal")); }

    /// Whether the window comes to be dark, or light, at its left edge, where it is empty.
    bool comesToBeDark(const std::string& window, bool isDark) const
    {
        const QByteArray display = session.environment().value(QStringLiteral("DISPLAY")).toUtf8();
        const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection{
            xcb_connect(display.constData(), nullptr), &xcb_disconnect};
        const auto id = static_cast<xcb_window_t>(std::stoul(window));
        return test::waitFor([&] {
            const auto asked = xcb_get_image(
                connection.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, id, 2, 300, 1, 1, /*plane_mask=*/~0U);
            const std::unique_ptr<xcb_get_image_reply_t, decltype(&std::free)> image{
                xcb_get_image_reply(connection.get(), asked, nullptr), &std::free};
            constexpr std::uint8_t half = 0x80;
            return image && (*xcb_get_image_data(image.get()) < half) == isDark;
        });
    }

    QDBusConnection bus = QDBusConnection::connectToBus(session.bus().address(), QStringLiteral("portal"));
    test::FakePortal portal{bus, 1};
};

} // namespace

TEST_F(GalleryLookTest, itIsDarkOnADarkDesktopAndFollowsAChange)
{
    HostFile{hostFile}.write(Arrangement{});
    ASSERT_TRUE(start(1));
    const std::string window = gallery();
    EXPECT_TRUE(comesToBeDark(window, true));
    portal.change(0);
    EXPECT_TRUE(comesToBeDark(window, false));
}

} // namespace skyvane
