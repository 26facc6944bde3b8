#include "companion/aircraft/outlook.h"

#include "companion/aircraft/pass_words.h"
#include "core/config/scope_palette.h"
#include "desk/look/contrast.h"
#include "paint/to_qt.h"

namespace skyvane {

Outlook Outlook::of(const Aircraft& aircraft, const SkyEntry& entry, bool isThere)
{
    const ScopePalette palette = entry.palette();
    Outlook outlook{
        .sky = {.color = legible(aircraft.blipColor(palette), toQt(palette.background)), .palette = palette},
        .look = {},
        .pass = {},
    };
    if (!entry.home || !isThere)
        return outlook;
    outlook.sky.where = whereToLook(aircraft, entry.home);
    outlook.sky.track = aircraft.track;
    outlook.sky.path = skyPath(aircraft, *entry.home);
    if (outlook.sky.where)
        outlook.look = toQString(lookText(aircraft, *outlook.sky.where));
    outlook.pass = toQString(passText(aircraft, *entry.home));
    return outlook;
}

} // namespace skyvane
