#pragma once

#include "host/session/x11_way.h"

namespace skyvane {

/// Widgets as windows that the window manager leaves alone, at the bottom of the screen's stack: for managers
/// that do not know the state "below", or never show the desktop. These are the tiling ones: to i3 a dock is
/// a bar, and any other window floats above the tiles; awesome moves windows about and raises them at a
/// click.
class UnmanagedWay : public X11Way {
public:
    using X11Way::X11Way;

    void adopt(QWidget& window) override;
    void show(QWidget& window) override;
    void giveKeyboard(QWidget& window) override;
};

} // namespace skyvane
