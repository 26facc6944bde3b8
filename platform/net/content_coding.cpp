#include "platform/net/content_coding.h"

#include "platform/net/transfer_error.h"

#include <brotli/decode.h>
#include <zlib.h>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <memory>
#include <vector>

namespace skyvane::ContentCoding {

namespace {

constexpr std::size_t mostCodings = 5;

[[noreturn]] void failToRead(const std::string& why)
{
    throw TransferError{TransferProblem::unreadable, why};
}

/// What comes out of a decoder, with room that is made as it is needed.
class Output {
public:
    Output(std::size_t input, std::size_t most) : m_most(most)
    {
        constexpr std::size_t usualRatio = 4;
        m_bytes.resize(std::min(std::max(input * usualRatio, least), most + 1));
    }

    char* room() { return m_bytes.data() + m_size; }
    std::size_t roomSize() const { return m_bytes.size() - m_size; }
    void take(std::size_t count)
    {
        m_size += count;
        if (m_size > m_most)
            throw TransferError{TransferProblem::tooLarge, "The answer is longer than 8 MiB"};
        if (m_size == m_bytes.size())
            m_bytes.resize(std::min(m_size * 2, m_most + 1));
    }
    std::string finished() &&
    {
        constexpr std::size_t spare = 64; // A parser may want to read the body where it stands.
        m_bytes.resize(m_size);
        m_bytes.reserve(m_size + spare);
        return std::move(m_bytes);
    }

private:
    static constexpr std::size_t least = 4096;

    std::string m_bytes;
    std::size_t m_size = 0;
    std::size_t m_most;
};

/// Whether the wrapping of zlib is there, which some servers leave out.
bool isWrapped(const std::string& bytes)
{
    constexpr unsigned deflateMethod = 8;
    if (bytes.size() < 2)
        return false;
    const unsigned first = static_cast<unsigned char>(bytes[0]);
    const unsigned second = static_cast<unsigned char>(bytes[1]);
    return (first & 0xf) == deflateMethod && (first * 256 + second) % 31 == 0;
}

std::string inflated(std::string bytes, int windowBits, std::size_t most)
{
    z_stream stream{};
    if (inflateInit2(&stream, windowBits) != Z_OK)
        failToRead("No memory to decompress the answer");
    const std::unique_ptr<z_stream, decltype(&inflateEnd)> end{&stream, &inflateEnd};
    const auto asBytes = [](char* text) {
        void* raw = text;
        return static_cast<Bytef*>(raw);
    };
    stream.next_in = asBytes(bytes.data());
    stream.avail_in = static_cast<uInt>(bytes.size());
    Output output{bytes.size(), most};
    int state = Z_OK;
    while (state == Z_OK) {
        const std::size_t room = output.roomSize();
        stream.next_out = asBytes(output.room());
        stream.avail_out = static_cast<uInt>(room);
        state = inflate(&stream, Z_NO_FLUSH);
        output.take(room - stream.avail_out);
    }
    if (state != Z_STREAM_END || stream.avail_in > 0)
        failToRead("The compressed answer is not whole");
    return std::move(output).finished();
}

std::string gunzipped(std::string bytes, std::size_t most)
{
    return inflated(std::move(bytes), MAX_WBITS + 16, most);
}

std::string undeflated(std::string bytes, std::size_t most)
{
    const int windowBits = isWrapped(bytes) ? MAX_WBITS : -MAX_WBITS;
    return inflated(std::move(bytes), windowBits, most);
}

std::string unbrotlied(std::string bytes, std::size_t most)
{
    const std::unique_ptr<BrotliDecoderState, decltype(&BrotliDecoderDestroyInstance)> decoder{
        BrotliDecoderCreateInstance(nullptr, nullptr, nullptr), &BrotliDecoderDestroyInstance};
    const void* raw = bytes.data();
    const auto* next = static_cast<const std::uint8_t*>(raw);
    std::size_t left = bytes.size();
    Output output{bytes.size(), most};
    auto state = BROTLI_DECODER_RESULT_NEEDS_MORE_OUTPUT;
    while (state == BROTLI_DECODER_RESULT_NEEDS_MORE_OUTPUT) {
        const std::size_t room = output.roomSize();
        std::size_t unused = room;
        void* place = output.room();
        auto* out = static_cast<std::uint8_t*>(place);
        state = BrotliDecoderDecompressStream(decoder.get(), &left, &next, &unused, &out, nullptr);
        output.take(room - unused);
    }
    if (state != BROTLI_DECODER_RESULT_SUCCESS || left > 0)
        failToRead("The compressed answer is not whole");
    return std::move(output).finished();
}

/// In lower case, in the order of the header.
std::vector<std::string> listed(std::string_view codings)
{
    std::vector<std::string> all(1);
    for (const char letter : codings) {
        if (letter == ',')
            all.emplace_back();
        else if (letter != ' ' && letter != '\t')
            all.back() += static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    }
    std::erase_if(all, [](const std::string& name) { return name.empty() || name == "identity"; });
    return all;
}

std::string undoneOnce(std::string body, const std::string& coding, std::size_t most)
{
    if (coding == "gzip" || coding == "x-gzip")
        return gunzipped(std::move(body), most);
    if (coding == "deflate")
        return undeflated(std::move(body), most);
    if (coding == "br")
        return unbrotlied(std::move(body), most);
    failToRead("The answer is compressed in an unknown way");
}

} // namespace

std::string undone(std::string body, std::string_view codings, std::size_t most)
{
    std::vector<std::string> order = listed(codings);
    if (order.size() > mostCodings)
        failToRead("The answer is compressed too often");
    for (; !order.empty() && !body.empty(); order.pop_back())
        body = undoneOnce(std::move(body), order.back(), most);
    return body;
}

} // namespace skyvane::ContentCoding
