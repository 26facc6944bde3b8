#pragma once

#include <QRect>

#include <cstdint>
#include <vector>

#include <xcb/xcb.h>

class QScreen;

/// A screen's room for windows on an X server, by what panels and the window manager say.
namespace skyvane::WorkArea {

/// A rectangle at one edge of the display that a panel asks to be kept free.
struct Strut {
    Qt::Edge edge;
    QRect frame;

    bool operator==(const Strut&) const = default;
};

/// What panels take of the display, in pixels.
struct Taken {
    std::vector<Strut> struts{};
    /// The room on each screen as the window manager counts it, where it says so.
    std::vector<QRect> areas{};
};

/// A window's struts by its property _NET_WM_STRUT_PARTIAL, or the shorter _NET_WM_STRUT.
std::vector<Strut> strutsOf(const std::vector<std::uint32_t>& words, QSize display);

/// What is left of a screen. A strut that would take more than half of it belongs to a panel beyond it:
/// struts count from the edge of the display, also where the panel stands between two screens.
QRect within(const QRect& screen, const Taken& taken);

/// Of this screen, in the toolkit's coordinates.
QRect of(const QScreen& screen, xcb_connection_t* connection);

} // namespace skyvane::WorkArea
