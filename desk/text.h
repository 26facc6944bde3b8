#pragma once

#include "paint/to_qt.h"
#include "platform/text/localized.h"

namespace skyvane {

/// `localized` for widgets: the text for this key, which is its English form, in the user's language.
inline QString localizedText(const char* key)
{
    return toQString(localized(key));
}

/// The same with its placeholders filled, as `localized` fills them.
inline QString localizedText(const char* key, std::initializer_list<Filling> fillings)
{
    return toQString(localized(key, fillings));
}

} // namespace skyvane
