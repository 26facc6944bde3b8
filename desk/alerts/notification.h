#pragma once

#include <QString>

namespace skyvane {

/// What the desktop shows the user: plain text, whatever it holds.
struct Notification {
    QString key; ///< Its own; a later one with it takes its place.
    QString title;
    QString body;

    bool operator==(const Notification&) const = default;
};

} // namespace skyvane
