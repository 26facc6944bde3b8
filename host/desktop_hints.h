#pragma once

class QWidget;

namespace skyvane {

/// Makes a top-level window that is not shown yet part of the desktop: without a frame, below everything, on
/// every workspace, in neither task bar nor pager.
void makePartOfDesktop(QWidget& window);

} // namespace skyvane
