#include "host/session/unmanaged_way.h"

#include <QWidget>

namespace skyvane {

void UnmanagedWay::adopt(QWidget& window)
{
    DesktopWay::adopt(window);
    window.setWindowFlag(Qt::X11BypassWindowManagerHint);
}

void UnmanagedWay::show(QWidget& window)
{
    DesktopWay::show(window);
    const std::uint32_t below = XCB_STACK_MODE_BELOW;
    xcb_configure_window(connection(), idOf(window), XCB_CONFIG_WINDOW_STACK_MODE, &below);
    xcb_flush(connection());
}

/// There is nobody to ask for it.
void UnmanagedWay::giveKeyboard(QWidget& window)
{
    xcb_set_input_focus(connection(), XCB_INPUT_FOCUS_POINTER_ROOT, idOf(window), XCB_CURRENT_TIME);
    xcb_flush(connection());
    window.setFocus(Qt::TabFocusReason);
}

} // namespace skyvane
