#pragma once

#include <string>
#include <string_view>
#include <variant>

namespace skyvane {

/// What an address of the scheme "skyvane" asks to be shown.
namespace IncomingLink {

struct Sky {
    bool operator==(const Sky&) const = default;
};

struct OneAircraft {
    std::string hex; ///< As written: hexadecimal digits, a "~" before them or not, 8 characters at most.

    bool operator==(const OneAircraft&) const = default;
};

/// Why a text is no such address.
enum class Problem {
    foreign, ///< Of another scheme, or no address at all.
    nowhere, ///< Nothing after the scheme.
    unknownPlace,
    noAircraft,
    noAddress, ///< Something else than an aircraft's address where one belongs.
    tooLong,
    unprintable,
};

using Target = std::variant<Sky, OneAircraft, Problem>;

/// Of any bytes whatsoever. Scheme and place are read in any case, one slash at the end is passed over.
Target read(std::string_view text);

/// For the user, in their language.
std::string description(Problem problem);

} // namespace IncomingLink

} // namespace skyvane
