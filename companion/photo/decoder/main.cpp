#include "companion/photo/answer.h"
#include "companion/photo/decoder/confinement.h"
#include "companion/photo/decoder/decode.h"
#include "companion/photo/limits.h"
#include "platform/files/descriptor.h"

#include <unistd.h>

#include <cerrno>
#include <new>
#include <string>

namespace {

using namespace skyvane;

/// The whole input, or as much of it as says that it is too large.
std::string readInput()
{
    std::string bytes(PhotoFile::largest + 1, '\0');
    std::size_t length = 0;
    while (length < bytes.size()) {
        const ssize_t got = read(STDIN_FILENO, bytes.data() + length, bytes.size() - length);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            break;
        length += static_cast<std::size_t>(got);
    }
    bytes.resize(length);
    return bytes;
}

} // namespace

/// The program that the companion has photographs decoded by: a file as its input, pixels as its output.
int main()
{
    if (!PhotoDecoder::confine())
        return 1;
    try {
        const auto pixels = decodedPhoto(readInput());
        return pixels && Files::writeAll(STDOUT_FILENO, PhotoAnswer::encoded(*pixels)) ? 0 : 1;
    } catch (const std::bad_alloc&) {
        return 1;
    }
}
