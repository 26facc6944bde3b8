#include "companion/photo/answer.h"
#include "fuzz/fuzzer.h"

/// What the process that decodes photographs answers: pixels, of which the answer is made again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace skyvane;
    const std::string_view bytes = fuzz::text(data, size);
    const auto pixels = PhotoAnswer::decoded(bytes);
    if (!pixels)
        return 0;
    fuzz::require(pixels->width <= PhotoAnswer::widest && pixels->height <= PhotoAnswer::highest);
    fuzz::require(pixels->list.size() == std::size_t{pixels->width} * pixels->height);
    fuzz::require(PhotoAnswer::encoded(*pixels) == bytes);
    return 0;
}
