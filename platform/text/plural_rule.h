#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace skyvane {

/// Which of a text's plural forms goes with a number, as the head of a catalogue says: "Plural-Forms:
/// nplurals=2; plural=(n != 1);", an expression of C. Without one, or with one that is none, it is that of
/// English.
class PluralRule {
public:
    PluralRule() = default;
    explicit PluralRule(std::string_view catalogueHead);

    /// The number of the form, from 0.
    std::size_t form(std::uint64_t count) const;

private:
    std::string m_expression;
};

} // namespace skyvane
