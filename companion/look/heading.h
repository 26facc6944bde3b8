#pragma once

#include <QString>

namespace skyvane {

/// The heading of a page.
struct Heading {
    QString title;
    QString details{}; ///< One line below the title; empty when there is none.
    QString window{}; ///< Title of the window; empty when it is that of the page.

    bool operator==(const Heading&) const = default;
};

} // namespace skyvane
