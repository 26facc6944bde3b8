#include "companion/photo/decoder/photo_file.h"

#include "companion/photo/decoder/formats.h"

namespace skyvane::PhotoFile {

std::optional<std::string> stripped(std::string_view bytes)
{
    if (bytes.size() > largest)
        return std::nullopt;
    for (const auto strip : {strippedJPEG, strippedPNG, strippedWebP}) {
        if (auto file = strip(bytes))
            return file;
    }
    return std::nullopt;
}

} // namespace skyvane::PhotoFile
