#pragma once

#include "platform/text/plural_rule.h"
#include "platform/text/text_direction.h"

#include <functional>
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
    TextDirection direction = TextDirection::leftToRight; ///< By the "Language" of its head.
};

namespace Catalogues {

/// Is called with a text's key, its context and a byte 4 before it where it has one, and with the text.
using Taker = std::function<void(std::string_view key, std::string_view text)>;

/// Hands over each text of what msgfmt(1) compiled, the header with an empty key. Returns whether all of it
/// could be read.
bool visit(std::string_view bytes, const Taker& take);

/// What msgfmt(1) compiled, made on a machine of either byte order; empty for anything else.
Catalogue read(std::string_view bytes);

/// The names under which catalogues are looked for, the most wanted first: "de_AT", "de". They are
/// LANGUAGE's, else the locale's by LC_ALL, LC_MESSAGES or LANG, whether or not that locale is generated on
/// this machine. Behind a locale's own names stands that of a catalogue which its readers read as well:
/// "nb" for Norwegian of any form, "zh_CN" for all of Chinese that is written in simplified characters.
/// Nothing stands behind English, which the texts are written in, and nothing is wanted in the "C" locale.
std::vector<std::string> wanted();

} // namespace Catalogues

} // namespace skyvane
