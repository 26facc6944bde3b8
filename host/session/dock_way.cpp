#include "host/session/dock_way.h"

#include "desk/x11.h"
#include "host/session/window_manager.h"

#include <QWidget>
#include <QWindow>

#include <array>
#include <vector>

namespace skyvane {

namespace {

void replace(
    xcb_connection_t* connection, xcb_window_t window, xcb_atom_t property, xcb_atom_t type, auto values)
{
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, property, type, 32,
        static_cast<std::uint32_t>(values.size()), values.data());
}

/// Of the property WM_HINTS: the bits that say what it holds, and whether a click may give the keyboard.
enum Hint : std::size_t { which, input };
constexpr std::uint32_t inputHint = 1U << 0;
constexpr std::uint32_t groupHint = 1U << 6;

} // namespace

/// Without struts: a dock that asks for no room of its own takes none from other windows.
void DockWay::adopt(QWidget& window)
{
    DesktopWay::adopt(window);
    // Nobody activates a dock that appears. One that says so itself mutter takes for a window that was denied
    // it, and asks for attention in its name.
    window.setAttribute(Qt::WA_ShowWithoutActivating, false);
    constexpr std::uint32_t everyDesktop = 0xFFFFFFFF;
    static const auto [windowType, dock, desktop, state, below, sticky, skipTaskBar, skipPager]
        = X11::atoms<8>(connection(),
            {"_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_DOCK", "_NET_WM_DESKTOP", "_NET_WM_STATE",
                "_NET_WM_STATE_BELOW", "_NET_WM_STATE_STICKY", "_NET_WM_STATE_SKIP_TASKBAR",
                "_NET_WM_STATE_SKIP_PAGER"});
    const xcb_window_t id = idOf(window);
    setTakingKeyboard(window, /*isTaking=*/false);
    replace(connection(), id, windowType, XCB_ATOM_ATOM, std::array{dock});
    replace(connection(), id, desktop, XCB_ATOM_CARDINAL, std::array{everyDesktop});
    replace(connection(), id, state, XCB_ATOM_ATOM, std::array{below, sticky, skipTaskBar, skipPager});
    xcb_flush(connection());
}

/// A dock below others is to openbox and KWin one among ordinary windows, and on top of them when it appears.
void DockWay::show(QWidget& window)
{
    DesktopWay::show(window);
    setTakingKeyboard(window, /*isTaking=*/false); // The toolkit says otherwise of what it shows.
    WindowManager::lower(connection(), idOf(window));
}

/// Some window managers give the keyboard to whatever is clicked, docks too, unless it says that it takes
/// none. And they keep some types of windows above the others of their group, here the gallery.
void DockWay::setTakingKeyboard(const QWidget& window, bool isTaking)
{
    auto hints = X11::words(connection(), idOf(window), XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS);
    constexpr std::size_t all = 9;
    hints.resize(all);
    hints[which] = (hints[which] | inputHint) & ~groupHint;
    hints[input] = isTaking ? 1 : 0;
    replace(connection(), idOf(window), XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS, hints);
}

void DockWay::activate(QWidget& window)
{
    setTakingKeyboard(window, /*isTaking=*/true);
    WindowManager::activate(connection(), idOf(window));
    const QWindow* handle = window.windowHandle();
    QObject::disconnect(handle, &QWindow::activeChanged, &window, nullptr);
    QObject::connect(handle, &QWindow::activeChanged, &window, [this, &window, handle] {
        if (!handle->isActive())
            setTakingKeyboard(window, /*isTaking=*/false);
    });
}

/// Where no window has the keyboard, Tab is to reach the links; but not while the desktop is shown, when KWin
/// would bring the other windows back, and not within Wayland, whose own windows the server does not know.
void DockWay::keepBelow(QWidget& window)
{
    static const bool knowsAllWindows = !X11::isWithinWayland(connection());
    if (knowsAllWindows && !WindowManager::hasActiveWindow(connection())
        && !WindowManager::isDesktopShown(connection()))
        activate(window);
    WindowManager::lower(connection(), idOf(window));
}

void DockWay::giveKeyboard(QWidget& window)
{
    activate(window);
    WindowManager::lower(connection(), idOf(window));
    window.setFocus(Qt::TabFocusReason);
}

} // namespace skyvane
