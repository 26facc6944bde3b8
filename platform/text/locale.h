#pragma once

#include "platform/clock.h"

#include <cstdint>
#include <string>

namespace skyvane {

/// How the user reads numbers and times.
struct Locale {
    std::string numbers; ///< ICU identifier, such as "de_DE".
    std::string times; ///< ICU identifier, such as "en_GB".
    std::string timeZone; ///< Olson identifier, such as "Europe/Berlin"; empty: the system's.

    /// The user's: LC_ALL, else LC_NUMERIC or LC_TIME, else LANG. "C", "POSIX" and nothing at all mean US
    /// English. A `Pinned<Locale>` stands in for it.
    static Locale current();

    bool operator==(const Locale&) const = default;
};

/// With the current locale's digits and grouping: 12500 is "12,500" in English. Many a locale does not group
/// four digits.
std::string groupedInteger(std::int64_t value);

/// The same without its sign.
std::string groupedMagnitude(std::int64_t value);

/// Hours and minutes as the current locale writes them: "10:42 AM", "10:42".
std::string shortTime(Date date);

/// The same with seconds.
std::string timeWithSeconds(Date date);

} // namespace skyvane
