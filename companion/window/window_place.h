#pragma once

#include <QRect>
#include <QSize>

namespace skyvane {

/// Where the window goes on a screen. Its place is that without the frame, whose size nobody knows before the
/// window is shown.
namespace WindowPlace {

/// A size that leaves room for a frame.
QSize fitted(const QSize& size, const QRect& available);

/// The remembered place where it is all on the screen; else moved, and where it must be shrunk, into it.
QRect fitted(const QRect& remembered, const QRect& available);

} // namespace WindowPlace

} // namespace skyvane
