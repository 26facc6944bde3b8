#include "desk/x11.h"

#include <QGuiApplication>

namespace skyvane::X11 {

xcb_connection_t* connection()
{
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    const bool isUsed = QGuiApplication::platformName() == QStringLiteral("xcb");
    return isUsed && x11 != nullptr ? x11->connection() : nullptr;
}

} // namespace skyvane::X11
