#pragma once

#include "host/commands/nearest_words.h"

#include <string>
#include <string_view>
#include <vector>

namespace skyvane {

/// How the nearest aircraft is told in a line: text with placeholders, "{callsign} in the {direction}". "{{"
/// and
/// "}}" are braces.
class LineFormat {
public:
    static constexpr std::string_view standard = "{callsign} {type} {distance} {altitude} {direction}";

    /// Throws `UsageError` for a placeholder that there is not, and for a brace that has no other.
    static LineFormat parse(std::string_view text);

    /// One line. Blanks that meet where a placeholder stays empty are one blank.
    std::string fill(const NearestWords& words) const;

private:
    /// A text, or what stands for it.
    struct Piece {
        std::string text{};
        std::string NearestWords::*word = nullptr;
    };

    std::vector<Piece> m_pieces;
};

} // namespace skyvane
