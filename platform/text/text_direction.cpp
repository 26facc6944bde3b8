#include "platform/text/text_direction.h"

#include <unicode/stringpiece.h>
#include <unicode/uchar.h>
#include <unicode/uloc.h>
#include <unicode/unistr.h>

#include <cstdint>
#include <string>

namespace skyvane {

TextDirection directionOf(std::string_view language)
{
    const bool isRightToLeft = uloc_isRightToLeft(std::string{language}.c_str()) != 0;
    return isRightToLeft ? TextDirection::rightToLeft : TextDirection::leftToRight;
}

bool runsLeftToRight(std::string_view text)
{
    const auto size = static_cast<std::int32_t>(text.size());
    const auto units = icu::UnicodeString::fromUTF8(icu::StringPiece{text.data(), size});
    bool hasLetters = false;
    for (std::int32_t at = 0; at < units.length(); at = units.moveIndex32(at, 1)) {
        const UCharDirection direction = u_charDirection(units.char32At(at));
        if (direction == U_RIGHT_TO_LEFT || direction == U_RIGHT_TO_LEFT_ARABIC)
            return false;
        hasLetters = hasLetters || direction == U_LEFT_TO_RIGHT;
    }
    return hasLetters;
}

} // namespace skyvane
