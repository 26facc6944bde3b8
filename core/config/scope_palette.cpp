#include "core/config/scope_palette.h"

#include "core/config/hex_color.h"

namespace skyvane {

namespace {

ScopePalette paletteOf(const HexColor::Components& accent)
{
    constexpr double darkness = 0.09;
    return {
        .phosphor = {accent.red, accent.green, accent.blue},
        .background = {accent.red * darkness, accent.green * darkness, accent.blue * darkness},
    };
}

} // namespace

ScopePalette ScopePalette::fromHex(std::optional<std::string_view> hex)
{
    const auto accent = hex ? HexColor::components(*hex) : std::nullopt;
    return accent ? paletteOf(*accent) : standard();
}

const ScopePalette& ScopePalette::standard()
{
    static const ScopePalette palette = paletteOf({.red = 0.45, .green = 1.0, .blue = 0.6});
    return palette;
}

} // namespace skyvane
