#include "tests/support/compressed.h"

#include <brotli/encode.h>
#include <zlib.h>

#include <cstdint>
#include <stdexcept>

namespace skyvane::test {

namespace {

/// `windowBits` also says which wrapping: 15 zlib's, 16 more gzip's.
std::string compressed(std::string_view bytes, int windowBits)
{
    z_stream stream{};
    if (deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, windowBits, 8, Z_DEFAULT_STRATEGY) != Z_OK)
        throw std::runtime_error("no compression");
    std::string result(deflateBound(&stream, bytes.size()), '\0');
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
    stream.avail_in = static_cast<uInt>(bytes.size());
    stream.next_out = reinterpret_cast<Bytef*>(result.data());
    stream.avail_out = static_cast<uInt>(result.size());
    deflate(&stream, Z_FINISH);
    result.resize(stream.total_out);
    deflateEnd(&stream);
    return result;
}

} // namespace

std::string gzipped(std::string_view bytes)
{
    return compressed(bytes, 15 + 16);
}

std::string deflated(std::string_view bytes)
{
    return compressed(bytes, 15);
}

std::string brotliCompressed(std::string_view bytes)
{
    std::size_t size = BrotliEncoderMaxCompressedSize(bytes.size());
    std::string result(size, '\0');
    constexpr int quality = 5;
    if (BrotliEncoderCompress(quality, BROTLI_DEFAULT_WINDOW, BROTLI_MODE_GENERIC, bytes.size(),
            reinterpret_cast<const std::uint8_t*>(bytes.data()), &size,
            reinterpret_cast<std::uint8_t*>(result.data()))
        == BROTLI_FALSE)
        throw std::runtime_error("no compression");
    result.resize(size);
    return result;
}

std::string EndlessGzip::first(std::size_t size) const
{
    std::string bytes = beginning;
    bytes.reserve(size + period.size());
    while (bytes.size() < size)
        bytes += period;
    return bytes;
}

/// One literal, then nothing but "258 more of the last byte" in 13 bits, so that 13 bytes hold 8 of them.
EndlessGzip endlessGzip()
{
    constexpr std::size_t headSize = 10;
    constexpr std::size_t periodSize = 13;
    std::string bytes{"\x1f\x8b\x08\x00\x00\x00\x00\x00\x00\x03", headSize};
    std::size_t length = 0;
    const auto put = [&](const char* bits) {
        for (; *bits != '\0'; ++bits, ++length) {
            if (length % 8 == 0)
                bytes.push_back('\0');
            bytes.back() = static_cast<char>(bytes.back() | (*bits - '0') << length % 8);
        }
    };
    put("11000110000");
    while (bytes.size() <= headSize + 2 + periodSize)
        put("1100010100000");
    return {.beginning = bytes.substr(0, headSize + 2), .period = bytes.substr(headSize + 2, periodSize)};
}

} // namespace skyvane::test
