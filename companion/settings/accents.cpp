#include "companion/settings/accents.h"

#include "desk/look/contrast.h"
#include "desk/text.h"

namespace skyvane {

std::vector<Accent> offeredAccents()
{
    return {
        {std::nullopt, localizedText("Standard")},
        {"#a8f53d", localizedText("Lime")},
        {"#ffcca6", localizedText("Peach")},
        {"#ffc7cd", localizedText("Rose")},
        {"#ffc4ed", localizedText("Pink")},
        {"#dccfff", localizedText("Violet")},
        {"#b5daff", localizedText("Blue")},
        {"#3de8ff", localizedText("Cyan")},
        {"#e8f1f2", localizedText("White")},
    };
}

bool isEasyToRead(const ScopePalette& palette)
{
    constexpr double enoughForText = 4.5;
    return contrastOn(palette.background, palette.dim()) >= enoughForText;
}

} // namespace skyvane
