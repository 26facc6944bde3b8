#pragma once

#include "platform/text/plural_rule.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace skyvane {

/// The texts of one language.
struct Catalogue {
    /// By the English text. One that counts has all its forms, each but the last followed by a zero.
    std::unordered_map<std::string, std::string> texts{};
    PluralRule plural{};
};

namespace Catalogues {

/// What msgfmt(1) compiled, made on a machine of either byte order; empty for anything else.
Catalogue read(std::string_view bytes);

/// The names under which catalogues are looked for, the most wanted first: "de_AT", "de". They are
/// LANGUAGE's, else the locale's by LC_ALL, LC_MESSAGES or LANG, whether or not that locale is generated on
/// this machine. Nothing stands behind English, which the texts are written in, and nothing is wanted in the
/// "C" locale.
std::vector<std::string> wanted();

} // namespace Catalogues

} // namespace skyvane
