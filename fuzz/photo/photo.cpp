#include "companion/photo/photo_file.h"
#include "fuzz/fuzzer.h"

/// A photograph's file: what is left for the decoder is one that is left as it is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace skyvane;
    const auto stripped = PhotoFile::stripped(fuzz::text(data, size));
    if (!stripped)
        return 0;
    fuzz::require(stripped->size() <= size);
    fuzz::require(PhotoFile::stripped(*stripped) == stripped);
    for (std::size_t left = 0; left < stripped->size(); left += 1 + stripped->size() / 16)
        fuzz::require(!PhotoFile::stripped(std::string_view{*stripped}.substr(0, left)));
    return 0;
}
