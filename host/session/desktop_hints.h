#pragma once

class QPoint;
class QWidget;

namespace skyvane {

/// Makes a top-level window that is not shown yet part of the desktop: without a frame, below everything, on
/// every workspace, in neither task bar nor pager.
void makePartOfDesktop(QWidget& window);

/// Shows such a window under all others. A dock below others is to some window managers (openbox, KWin) one
/// among ordinary windows, and on top of them when it appears.
void showOnDesktop(QWidget& window);

/// To be called when the pointer is pressed in such a window: it gets the keyboard, which those managers do
/// not give to docks, and is under all others again.
void stayOnDesktop(QWidget& window);

/// Moves such a window, in the coordinates of the screens.
void moveOnDesktop(QWidget& window, const QPoint& place);

/// Whether ordinary windows and the pointer, too, are known in those coordinates.
bool arePlacesKnown();

} // namespace skyvane
