#pragma once

class QPoint;
class QWidget;

namespace skyvane {

/// Makes a top-level window that is not shown yet part of the desktop: without a frame, below everything, on
/// every workspace, in neither task bar nor pager.
void makePartOfDesktop(QWidget& window);

/// Moves such a window, in the coordinates of the screens.
void moveOnDesktop(QWidget& window, const QPoint& place);

/// Whether ordinary windows and the pointer, too, are known in those coordinates.
bool arePlacesKnown();

} // namespace skyvane
