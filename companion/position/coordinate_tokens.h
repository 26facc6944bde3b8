#pragma once

#include <optional>
#include <string_view>
#include <variant>
#include <vector>

/// The pieces of a written position.
namespace skyvane::CoordinateTokens {

struct Number {
    double value;
    bool isWhole;

    bool operator==(const Number&) const = default;
};

enum class Sign { plus, minus };
enum class Mark { degrees, minutes, seconds };
enum class Hemisphere { north, south, east, west };
enum class Axis { latitude, longitude }; ///< "lat:", "Longitude".
struct Separator {
    bool operator==(const Separator&) const = default;
};

/// The letter O alone: east in German, west in French and Spanish.
struct EastOrWest {
    bool operator==(const EastOrWest&) const = default;
};

using Token = std::variant<Number, Sign, Mark, Hemisphere, Axis, Separator, EastOrWest>;

/// How a comma between two digits is read.
enum class Comma { separator, decimalMark };

/// The tokens of the text, words in English, German, Spanish and French, in capitals or not; brackets say
/// nothing. Absent when it holds anything else or is too long for a position.
std::optional<std::vector<Token>> read(std::string_view text, Comma comma);

} // namespace skyvane::CoordinateTokens
