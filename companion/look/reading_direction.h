#pragma once

#include <QGuiApplication>
#include <QMargins>

namespace skyvane {

/// A row's margins, given as they are where lines run from left to right. Layouts mirror what stands in them,
/// but not their margins.
inline QMargins inReadingDirection(const QMargins& margins)
{
    return QGuiApplication::isRightToLeft()
        ? QMargins{margins.right(), margins.top(), margins.left(), margins.bottom()}
        : margins;
}

} // namespace skyvane
