#include "tests/support/compressed.h"
#include "tests/support/fault.h"

namespace skyvane::test {

namespace {

constexpr std::size_t mebibyte = std::size_t{1} << 20;

Fault compressed(std::string name, const std::string& coding, std::string body, Fault::Outcome outcome)
{
    Answer answer{.headers = {{.name = "Content-Encoding", .value = coding}}, .body = std::move(body)};
    return {.name = std::move(name),
        .handler = [answer = std::move(answer)](
                       const RecordedRequest&, Connection& connection) { connection.answer(answer); },
        .outcome = outcome};
}

/// Without zlib's two bytes before it and its checksum behind.
std::string unwrapped(const std::string& body)
{
    return body.substr(2, body.size() - 6);
}

Fault good(const std::string& coding, std::string body)
{
    return compressed(coding + "Good", coding, std::move(body), Fault::Outcome::delivered);
}

Fault torn(const std::string& coding, const std::string& body)
{
    return compressed(coding + "Torn", coding, body.substr(0, body.size() / 2), Fault::Outcome::failed);
}

/// All of it but its checksum, or what else tells its end.
Fault withoutEnd(std::string name, const std::string& coding, const std::string& body, std::size_t end)
{
    Fault fault
        = compressed(std::move(name), coding, body.substr(0, body.size() - end), Fault::Outcome::failed);
    fault.words = "not whole";
    return fault;
}

Fault withWrongChecksum()
{
    std::string body = gzipped(goodAnswer);
    body[body.size() - 8] ^= 1;
    return compressed("gzipWithWrongChecksum", "gzip", std::move(body), Fault::Outcome::failed);
}

/// What it makes grows on the way out; on the wire it is this.
Fault bomb(std::string name, const std::string& coding, std::string body)
{
    Fault fault = compressed(std::move(name), coding, std::move(body), Fault::Outcome::failed);
    fault.words = "longer than 8 MiB";
    return fault;
}

Fault endlessBomb()
{
    return {.name = "gzipBombWithoutEnd",
        .handler =
            [](const RecordedRequest&, Connection& connection) {
                const EndlessGzip zeros = endlessGzip();
                connection.send("HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\n\r\n");
                connection.send(zeros.beginning);
                for (const std::string piece = EndlessGzip{"", zeros.period}.first(0x4000); true;)
                    connection.send(piece);
            },
        .words = "longer than 8 MiB"};
}

} // namespace

std::vector<Fault> compressionFaults()
{
    const std::string tenGigabytes = endlessGzip().first(10 * mebibyte);
    return {
        good("gzip", gzipped(goodAnswer)),
        good("deflate", deflated(goodAnswer)),
        good("br", brotliCompressed(goodAnswer)),
        compressed("gzipTwice", "gzip, gzip", gzipped(gzipped(goodAnswer)), Fault::Outcome::delivered),
        compressed("deflateUnwrapped", "deflate", unwrapped(deflated(goodAnswer)), Fault::Outcome::delivered),
        compressed("gzipByItsOldName", "X-GZip", gzipped(goodAnswer), Fault::Outcome::delivered),
        compressed("gzipAndNothing", "identity, gzip", gzipped(goodAnswer), Fault::Outcome::delivered),
        withoutEnd("gzipWithoutChecksum", "gzip", gzipped(goodAnswer), 8),
        withoutEnd("gzipWithoutItsLastByte", "gzip", gzipped(goodAnswer), 1),
        withoutEnd("deflateWithoutChecksum", "deflate", deflated(goodAnswer), 4),
        withoutEnd("brWithoutItsLastByte", "br", brotliCompressed(goodAnswer), 1),
        withWrongChecksum(),
        compressed("gzipAndMore", "gzip", gzipped(goodAnswer) + "more", Fault::Outcome::failed),
        torn("gzip", gzipped(goodAnswer)),
        torn("deflate", deflated(goodAnswer)),
        torn("br", brotliCompressed(goodAnswer)),
        compressed("notCompressedAtAll", "gzip", goodAnswer, Fault::Outcome::failed),
        compressed("unknownCompression", "sky", goodAnswer, Fault::Outcome::failed),
        compressed("compressedTooOften", "gzip, gzip, gzip, gzip, gzip, gzip", "", Fault::Outcome::failed),
        bomb("deflateBomb", "deflate", deflated(std::string(64 * mebibyte, ' '))),
        bomb("brBomb", "br", brotliCompressed(std::string(64 * mebibyte, ' '))),
        bomb("gzipBombOfTenGigabytesInTenKilobytes", "gzip, gzip", gzipped(tenGigabytes)),
        bomb("gzipBombInsideBr", "gzip, br", brotliCompressed(tenGigabytes)),
        endlessBomb(),
    };
}

} // namespace skyvane::test
