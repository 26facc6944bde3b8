#include "tests/support/fault.h"

namespace skyvane::test {

const char* const goodAnswer = R"({
    "ac": [{"hex": "abc001", "flight": "GOOD1", "lat": 51.6, "lon": -0.1, "dst": 3, "dir": 10}],
    "response": {"flightroute": {"origin": {"iata_code": "SFO"}, "destination": {"iata_code": "JFK"}}},
    "photos": [{"thumbnail_large": {"src": "https://t.example.test/1.jpg"}}]})";

namespace {

using Outcome = Fault::Outcome;

HttpsServer::Handler answering(Answer answer)
{
    return [answer = std::move(answer)](
               const RecordedRequest&, Connection& connection) { connection.answer(answer); };
}

HttpsServer::Handler sending(std::string bytes)
{
    return [bytes = std::move(bytes)](const RecordedRequest&, Connection& connection) {
        connection.send(bytes);
        connection.close();
    };
}

Answer redirect(const std::string& place)
{
    return {.status = 302, .headers = {{.name = "Location", .value = place}}};
}

std::vector<Fault> redirects()
{
    return {
        {.name = "redirectLoop", .handler = answering(redirect("/")), .words = "redirects"},
        {.name = "redirectToPlainHTTP",
            .handler = answering(redirect("http://example.test/")),
            .words = "http"},
        {.name = "redirectToAFile", .handler = answering(redirect("file:///etc/hostname")), .words = "file"},
        {.name = "redirectToNobody",
            .handler = answering(redirect("https://nobody.test/")),
            .words = "connect"},
        {.name = "redirectToAGoodPlace",
            .handler =
                [](const RecordedRequest& asked, Connection& connection) {
                    connection.answer(
                        asked.target == "/good" ? Answer{.body = goodAnswer} : redirect("/good"));
                },
            .outcome = Outcome::delivered},
    };
}

Fault withStatus(int status, std::vector<HTTPHeader> headers = {}, std::string body = goodAnswer)
{
    return {.name = "status" + std::to_string(status),
        .handler = answering({.status = status, .headers = std::move(headers), .body = std::move(body)}),
        .outcome = Outcome::refused};
}

std::vector<Fault> statuses()
{
    const std::string good = head({.body = goodAnswer}) + goodAnswer;
    return {
        {.name = "status100First",
            .handler = sending("HTTP/1.1 100 Continue\r\n\r\n" + good),
            .outcome = Outcome::delivered},
        {.name = "status103First",
            .handler = sending("HTTP/1.1 103 Early Hints\r\nLink: </a>\r\n\r\n" + good),
            .outcome = Outcome::delivered},
        withStatus(204, {}, ""),
        withStatus(206, {{.name = "Content-Range", .value = "bytes 0-99/1000"}}),
        withStatus(301),
        withStatus(304, {}, ""),
        withStatus(404),
        withStatus(429, {{.name = "Retry-After", .value = "3600"}}),
        withStatus(500),
        withStatus(503, {{.name = "Retry-After", .value = "0"}}),
    };
}

Fault withLength(std::string name, const std::string& length, std::string words = ".")
{
    return {.name = std::move(name),
        .handler = sending("HTTP/1.1 200 OK\r\nContent-Length: " + length + "\r\n\r\n" + goodAnswer),
        .words = std::move(words)};
}

HttpsServer::Handler pouring(std::string beginning, std::string piece)
{
    return [beginning = std::move(beginning), piece = std::move(piece)](
               const RecordedRequest&, Connection& connection) {
        connection.send(beginning);
        while (true)
            connection.send(piece);
    };
}

std::vector<Fault> lengths()
{
    constexpr const char* chunked = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";
    const std::string line = "X-Flood: " + std::string(1000, 'x') + "\r\n";
    return {
        {.name = "noLength",
            .handler = sending(std::string{"HTTP/1.1 200 OK\r\n\r\n"} + goodAnswer),
            .outcome = Outcome::delivered},
        withLength("lengthTooShort", "20", "not JSON"),
        withLength("lengthTooLong", "100000"),
        withLength("lengthHuge", "9223372036854775806"),
        withLength("lengthAbsurd", "1000000000000000000000000000000"),
        withLength("lengthBelowZero", "-5"),
        withLength("lengthOfLetters", "many"),
        {.name = "chunkSizeOfLetters", .handler = sending(std::string{chunked} + "zz\r\n{}\r\n0\r\n\r\n")},
        {.name = "chunkTorn", .handler = sending(std::string{chunked} + "ff\r\n{}")},
        {.name = "lastChunkMissing", .handler = sending(std::string{chunked} + "2\r\n{}\r\n")},
        {.name = "chunksWithoutEnd",
            .handler = pouring(chunked, "4000\r\n" + std::string(0x4000, ' ') + "\r\n"),
            .words = "longer than 8 MiB"},
        {.name = "bodyWithoutEnd",
            .handler = pouring("HTTP/1.1 200 OK\r\n\r\n", std::string(0x4000, ' ')),
            .words = "longer than 8 MiB"},
        {.name = "headersWithoutEnd",
            .handler = pouring("HTTP/1.1 200 OK\r\n", line),
            .words = "headers are longer than 256 KiB"},
        {.name = "oneHeaderWithoutEnd",
            .handler = pouring("HTTP/1.1 200 OK\r\nX-Flood: ", std::string(0x4000, 'x'))},
    };
}

} // namespace

std::vector<Fault> answerFaults()
{
    std::vector<Fault> all = redirects();
    for (const auto& more : {statuses(), lengths()})
        all.insert(all.end(), more.begin(), more.end());
    return all;
}

} // namespace skyvane::test
