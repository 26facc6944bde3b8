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

Fault good(const std::string& coding, std::string body)
{
    return compressed(coding + "Good", coding, std::move(body), Fault::Outcome::delivered);
}

Fault torn(const std::string& coding, const std::string& body)
{
    return compressed(coding + "Torn", coding, body.substr(0, body.size() / 2), Fault::Outcome::failed);
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
