#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace skyvane::JSON {

/// What a number token says to its last digit: a whole number times a power of ten.
struct Decimal {
    bool isNegative = false;
    std::string digits{}; ///< Without zeros in front and at the end; empty for zero.
    std::int64_t exponent = 0; ///< An absurd one is another, beyond all doubles like it.

    static Decimal of(std::string_view token);

    /// Absent when it is not whole or does not fit 64 bits.
    std::optional<std::int64_t> wholeNumber() const;
};

} // namespace skyvane::JSON
