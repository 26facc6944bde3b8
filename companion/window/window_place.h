#pragma once

#include <QRect>
#include <QSize>

namespace skyvane {

/// Where the window goes on a screen. Its place is that without the frame, whose size nobody knows before the
/// window is shown.
namespace WindowPlace {

/// The size, shrunk where a window of it with a frame would not fit.
QSize fitted(const QSize& size, const QRect& available);

/// The remembered place, moved and if need be shrunk to lie within the screen.
QRect fitted(const QRect& remembered, const QRect& available);

} // namespace WindowPlace

} // namespace skyvane
