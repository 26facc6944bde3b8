#include "companion/aircraft/squawk_words.h"

#include "desk/text.h"

namespace skyvane {

namespace {

QString meaning(std::string_view squawk)
{
    if (squawk == "7500")
        return localizedText("hijacking");
    if (squawk == "7600")
        return localizedText("radio failure");
    if (squawk == "7700")
        return localizedText("emergency");
    if (squawk == "7000" || squawk == "1200")
        return localizedText("visual flight");
    if (squawk == "2000")
        return localizedText("none assigned");
    if (squawk == "1000")
        return localizedText("known by its address");
    return {};
}

} // namespace

QString squawkText(std::string_view squawk)
{
    const QString words = meaning(squawk);
    return words.isEmpty() ? toQString(squawk) : toQString(squawk) + QStringLiteral(" · ") + words;
}

} // namespace skyvane
