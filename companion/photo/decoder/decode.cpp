#include "companion/photo/decoder/decode.h"

#include "companion/photo/answer.h"
#include "companion/photo/decoder/libraries.h"
#include "companion/photo/decoder/photo_file.h"
#include "companion/photo/decoder/turn.h"

#include <utility>

namespace skyvane {

namespace {

constexpr Extent shown{.width = PhotoAnswer::widest, .height = PhotoAnswer::highest};

/// By the first byte: what `PhotoFile` lets pass is of one of three formats.
std::optional<Pixels> decoded(std::string_view file, const Extent& place)
{
    switch (file.front()) {
    case '\xff':
        return PhotoLibrary::decodedJPEG(file, place);
    case '\x89':
        return PhotoLibrary::decodedPNG(file);
    default:
        return PhotoLibrary::decodedWebP(file);
    }
}

} // namespace

std::optional<Pixels> decodedPhoto(std::string_view bytes)
{
    const auto file = PhotoFile::stripped(bytes);
    if (!file)
        return std::nullopt;
    const Turn turn = turnOf(*file);
    const Extent place = turn.isTransposed ? shown.transposed() : shown;
    auto pixels = decoded(*file, place);
    if (!pixels)
        return std::nullopt;
    const Extent needed = covering({.width = pixels->width, .height = pixels->height}, place);
    return middleOf(turned(scaledDown(*std::move(pixels), needed), turn), shown);
}

} // namespace skyvane
