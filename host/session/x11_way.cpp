#include "host/session/x11_way.h"

#include "desk/activation.h"
#include "desk/x11.h"
#include "host/session/work_area.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace skyvane {

xcb_window_t X11Way::idOf(const QWidget& window)
{
    return static_cast<xcb_window_t>(window.winId());
}

QString X11Way::activationToken(QWidget& window, std::uint32_t time)
{
    return Activation::newToken(m_connection, idOf(window), time);
}

/// The toolkit heeds what the window manager says, one rectangle for all screens, where there is one screen.
/// Panels that the manager says nothing of ask for their room themselves.
QRect X11Way::area(const QScreen& screen) const
{
    const QRect known
        = QGuiApplication::screens().size() > 1 ? screen.geometry() : screen.availableGeometry();
    return known.intersected(WorkArea::of(screen, m_connection));
}

} // namespace skyvane
