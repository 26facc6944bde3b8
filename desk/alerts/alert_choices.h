#pragma once

#include "protocol/alert_rules.h"

#include <QTime>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace skyvane {

/// Hours of the user's day in which nothing is told: from the first until before the second, which may be
/// that of the next day. The same twice is no time.
struct QuietHours {
    QTime from;
    QTime until;

    bool hold(QTime time) const;

    bool operator==(const QuietHours&) const = default;
};

/// What the user has chosen to be told of: the companion asks, the host tells. Nothing, at first.
struct AlertChoices {
    static constexpr int lowest = 10; ///< Degrees.
    static constexpr int highest = 90;

    bool emergency = false;
    bool military = false;
    bool overhead = false;
    int elevation = 45; ///< Degrees over the horizon, at least, of what passes overhead.
    bool isQuiet = false; ///< Whether the quiet hours are kept.
    QuietHours quietHours{.from = QTime{22, 0}, .until = QTime{7, 0}};
    std::vector<std::string> watch{}; ///< Patterns as `AlertRules` has them.

    /// What to ask the extension for; absent when nothing is chosen.
    std::optional<AlertRules> rules() const;

    bool areQuietAt(QTime time) const { return isQuiet && quietHours.hold(time); }

    /// The text of the file that keeps them.
    std::string encoded() const;
    /// Absent when the text is of another shape or version; numbers out of bounds are bounded.
    static std::optional<AlertChoices> decoded(std::string_view text);

    bool operator==(const AlertChoices&) const = default;
};

} // namespace skyvane
