#pragma once

#include "platform/text/catalogue.h"

#include <string>

namespace skyvane::Language {

/// The user's, such as "de_AT"; empty for English.
inline std::string own()
{
    const auto wanted = Catalogues::wanted();
    return wanted.empty() ? std::string{} : wanted.front();
}

} // namespace skyvane::Language
