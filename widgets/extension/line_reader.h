#pragma once

#include "protocol/limits.h"

#include <cstddef>
#include <optional>
#include <string>

namespace skyvane::Extension {

/// The lines of an input that nobody vouches for: holds no more of them than the longest that is allowed.
class LineReader {
public:
    static constexpr std::size_t longestLine
        = Protocol::Limits::longestRequest; ///< Bytes, without the line break.

    struct Line {
        std::string text; ///< Without the line break; empty when it is too long.
        bool isTooLong = false;

        bool operator==(const Line&) const = default;
    };

    /// Reading ends early when `interrupt`, an event descriptor, becomes readable.
    LineReader(int input, int interrupt);

    /// Waits for it. Absent at the end; text that no line break ends is a line. Of a line that is too long
    /// the rest is passed over.
    std::optional<Line> next();

private:
    std::optional<Line> takeLine();
    bool readMore();

    int m_input;
    int m_interrupt;
    std::string m_pending;
    std::size_t m_searched = 0; ///< So much of what is pending holds no line break.
    bool m_passesOver = false;
};

} // namespace skyvane::Extension
