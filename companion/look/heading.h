#pragma once

#include <QString>

namespace skyvane {

/// What a page is headed with.
struct Heading {
    QString title;
    QString details{}; ///< In one line; empty: none.
    QString window{}; ///< What the window is called instead; empty: the title.

    bool operator==(const Heading&) const = default;
};

} // namespace skyvane
