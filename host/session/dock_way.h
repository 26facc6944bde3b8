#pragma once

#include "host/session/x11_way.h"

namespace skyvane {

/// Widgets as docks below other windows, for window managers that can show the desktop. Of all types of
/// windows only a dock stays then under openbox, xfwm4, marco, mutter and KWin alike. One of type "desktop"
/// stays as well, but a click on the desktop's own window covers it.
class DockWay : public X11Way {
public:
    using X11Way::X11Way;

    void adopt(QWidget& window) override;
    void show(QWidget& window) override;
    void keepBelow(QWidget& window) override;
    void giveKeyboard(QWidget& window) override;

private:
    void setTakingKeyboard(const QWidget& window, bool isTaking);
    void activate(QWidget& window);
};

} // namespace skyvane
