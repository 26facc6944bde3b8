#pragma once

#include "paint/to_qt.h"
#include "platform/text/localized.h"

namespace skyvane {

/// `localized` for widgets: the text for this key, which is its English form, in the user's language.
inline QString localizedText(const char* key)
{
    return toQString(localized(key));
}

/// The same with each "%lld" of the text replaced by the next number, plainly printed.
inline QString localizedText(const char* key, std::initializer_list<std::int64_t> numbers)
{
    return toQString(localized(key, numbers));
}

} // namespace skyvane
