#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <optional>
#include <string>
#include <vector>

namespace skyvane {

enum class ScreenCorner { topLeft, topRight, bottomLeft, bottomRight };

/// A screen's room for windows, panels left out.
struct ScreenArea {
    std::string name;
    QRect area;
    std::string identity{}; ///< Stays when the name changes, as with the socket; empty where nothing does.

    bool operator==(const ScreenArea&) const = default;
};

/// Where a widget stands, so that it can be found again after the screen's size or place has changed.
struct Placement {
    std::string screen;
    ScreenCorner corner;
    QPoint inset; ///< From the screen's corner to the widget's own, points, inwards.
    std::string identity{}; ///< The screen's; empty where it has none.
    QSize
        area{}; ///< Of the screen's room at that time; empty where a file of an earlier version says nothing.

    bool operator==(const Placement&) const = default;
};

/// Where widgets stand on screens: arithmetic only.
namespace Placing {

inline constexpr int grid = 8;

/// By the screen that holds most of the frame, and its nearest corner. Absent without screens.
std::optional<Placement> placement(const QRect& frame, const std::vector<ScreenArea>& screens);

/// The widget's frame, wholly on its screen, else on the first one. Without screens it stays at the origin.
QRect frame(const Placement& placement, QSize size, const std::vector<ScreenArea>& screens);

/// A widget's remembered place and its size.
struct Remembered {
    Placement placement;
    QSize size;
};

/// The frames of all widgets, in their order. Those that cannot stand where they are remembered, because the
/// screen is gone or smaller now, cover none of the others as long as there is room, nor do two cover each
/// other that did not in the room they were put into.
std::vector<QRect> frames(const std::vector<Remembered>& widgets, const std::vector<ScreenArea>& screens);

/// The frame moved by a few points onto the edges of its neighbours (side by side with a gap of one grid
/// step, or in line), else onto the grid of the area; always inside the area.
QRect snapped(QRect frame, const QRect& area, const std::vector<QRect>& neighbours);

/// A place that no other frame overlaps: down the right edge first, then to the left. Where there is none,
/// the top right corner.
QRect freeFrame(QSize size, const QRect& area, const std::vector<QRect>& taken);

/// The frame moved by as little as possible to lie in the area, from its top left corner where it is too
/// large.
QRect inside(const QRect& frame, const QRect& area);

/// The area of the screen that holds most of the frame, or is nearest to it. Absent without screens.
std::optional<ScreenArea> screenOf(const QRect& frame, const std::vector<ScreenArea>& screens);

} // namespace Placing

} // namespace skyvane
