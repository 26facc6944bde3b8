#include "companion/photo/answer.h"
#include "companion/photo/decoder/decode.h"
#include "companion/photo/decoder/photo_file.h"
#include "fuzz/fuzzer.h"

/// A photograph's file: what is left for the decoder is one that is left as it is, and what is decoded is an
/// answer that can be read.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace skyvane;
    const std::string_view bytes = fuzz::text(data, size);
    const auto stripped = PhotoFile::stripped(bytes);
    const auto pixels = decodedPhoto(bytes);
    fuzz::require(stripped || !pixels);
    if (!stripped)
        return 0;
    fuzz::require(stripped->size() <= size);
    fuzz::require(PhotoFile::stripped(*stripped) == stripped);
    for (std::size_t left = 0; left < stripped->size(); left += 1 + stripped->size() / 16)
        fuzz::require(!PhotoFile::stripped(std::string_view{*stripped}.substr(0, left)));
    if (pixels)
        fuzz::require(PhotoAnswer::decoded(PhotoAnswer::encoded(*pixels)) == pixels);
    return 0;
}
