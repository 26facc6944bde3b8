#include "host/session/desktop_way.h"

#include <QScreen>
#include <QWidget>

namespace skyvane {

void DesktopWay::adopt(QWidget& window)
{
    const Qt::WindowFlags kept = window.windowFlags() & Qt::WindowTransparentForInput;
    window.setWindowFlags(kept | Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnBottomHint
        | Qt::NoDropShadowWindowHint);
    window.setAttribute(Qt::WA_TranslucentBackground);
    window.setAttribute(Qt::WA_ShowWithoutActivating);
}

void DesktopWay::show(QWidget& window)
{
    window.show();
}

void DesktopWay::move(QWidget& window, const QPoint& place)
{
    window.move(place);
}

void DesktopWay::giveKeyboard(QWidget& window)
{
    window.activateWindow();
    window.setFocus(Qt::TabFocusReason);
}

QRect DesktopWay::area(const QScreen& screen) const
{
    return screen.availableGeometry();
}

} // namespace skyvane
