#pragma once

#include "companion/aircraft/sky_dome.h"
#include "core/model/aircraft.h"
#include "core/views/sky_entry.h"

#include <QString>

namespace skyvane {

/// Where to look for an aircraft, drawn and in words.
struct Outlook {
    SkyDome::Content sky;
    QString look; ///< Where it is; empty where that is not known.
    QString pass; ///< When and how high it will pass; the same.

    /// `isThere`: it is in range. Of one that has left there is the empty sky.
    static Outlook of(const Aircraft& aircraft, const SkyEntry& entry, bool isThere);
};

} // namespace skyvane
