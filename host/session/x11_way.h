#pragma once

#include "host/session/desktop_way.h"

#include <xcb/xcb.h>

namespace skyvane {

/// What all ways on an X server have in common.
class X11Way : public DesktopWay {
public:
    explicit X11Way(xcb_connection_t* connection) : m_connection(connection) { }

    QString activationToken(QWidget& window, std::uint32_t time) override;
    QRect area(const QScreen& screen) const override;

protected:
    xcb_connection_t* connection() const { return m_connection; }
    static xcb_window_t idOf(const QWidget& window);

private:
    xcb_connection_t* m_connection;
};

} // namespace skyvane
