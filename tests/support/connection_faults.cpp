#include "tests/support/fault.h"

#include <chrono>
#include <sstream>

namespace skyvane::test {

namespace {

using namespace std::chrono_literals;

constexpr const char* tookTooLong = "timed out|timeout";

HttpsServer::Handler sendingThen(std::string bytes, void (Connection::*end)())
{
    return [bytes = std::move(bytes), end](const RecordedRequest&, Connection& connection) {
        connection.send(bytes);
        (connection.*end)();
    };
}

std::string half()
{
    return head({.headers = {{.name = "Content-Length", .value = "1000"}}}) + R"({"ac":[{"hex":)";
}

/// The last chunk, which is empty, is missing.
std::string inOneChunk(const std::string& body)
{
    std::ostringstream text;
    text << "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n"
         << std::hex << body.size() << "\r\n"
         << body << "\r\n";
    return text.str();
}

void answerWell(const RecordedRequest&, Connection& connection)
{
    connection.answer({.body = goodAnswer});
}

std::vector<Fault> lostConnections()
{
    return {
        {.name = "connectionRefused", .words = "connect"},
        {.name = "resetBeforeTLSEnds",
            .handler = &answerWell,
            .greeting =
                [](Connection& connection) {
                    connection.receive();
                    connection.reset();
                }},
        {.name = "closedBeforeTLSBegins", .handler = &answerWell, .greeting = &Connection::cut},
        {.name = "noTLSAtAll",
            .handler = &answerWell,
            .greeting = [](Connection& connection) { connection.send("HTTP/1.1 400 Bad Request\r\n\r\n"); }},
        {.name = "closedBeforeTheAnswer", .handler = sendingThen("", &Connection::close)},
        {.name = "resetInHeaders",
            .handler = sendingThen("HTTP/1.1 200 OK\r\nContent-Le", &Connection::reset)},
        {.name = "resetInBody", .handler = sendingThen(half(), &Connection::reset)},
        {.name = "closedInBody", .handler = sendingThen(half(), &Connection::close)},
        {.name = "cutInBodyWithoutLengthOrGoodbye",
            .handler = sendingThen("HTTP/1.1 200 OK\r\n\r\n{\"ac\":[", &Connection::cut)},
        // Whether a text is whole is the decoder's to say.
        {.name = "cutAfterTheWholeAnswer",
            .handler = sendingThen(std::string{"HTTP/1.1 200 OK\r\n\r\n"} + goodAnswer, &Connection::cut),
            .outcome = Fault::Outcome::delivered},
        {.name = "resetAfterTheWholeAnswer",
            .handler = sendingThen(std::string{"HTTP/1.1 200 OK\r\n\r\n"} + goodAnswer, &Connection::reset)},
        {.name = "cutInHeaders", .handler = sendingThen("HTTP/1.1 200 OK\r\nContent-Le", &Connection::cut)},
        {.name = "cutBeforeTheLastChunk", .handler = sendingThen(inOneChunk(goodAnswer), &Connection::cut)},
        {.name = "cutBeforeTheAnnouncedLength", .handler = sendingThen(half(), &Connection::cut)},
        {.name = "notHTTP", .handler = sendingThen("220 ready\r\n", &Connection::close)},
    };
}

std::vector<Fault> slowConnections()
{
    return {
        {.name = "stallBeforeTLSEnds",
            .handler = &answerWell,
            .greeting = &Connection::stall,
            .words = tookTooLong,
            .isSlow = true},
        {.name = "stallBeforeHeaders",
            .handler = sendingThen("", &Connection::stall),
            .words = tookTooLong,
            .isSlow = true},
        {.name = "stallBeforeBody",
            .handler
            = sendingThen(head({.headers = {{.name = "Content-Length", .value = "9"}}}), &Connection::stall),
            .words = tookTooLong,
            .isSlow = true},
        {.name = "stallWithinBody",
            .handler = sendingThen(half(), &Connection::stall),
            .words = tookTooLong,
            .isSlow = true},
        {.name = "oneByteASecond",
            .handler =
                [](const RecordedRequest&, Connection& connection) {
                    connection.drip(head({.body = goodAnswer}) + goodAnswer, 1, 1s);
                },
            .words = tookTooLong,
            .isSlow = true},
    };
}

std::vector<Fault> certificates()
{
    using Certificate = Fault::Certificate;
    return {
        {.name = "expiredCertificate",
            .handler = &answerWell,
            .certificate = Certificate::expired,
            .words = "expired"},
        {.name = "selfSignedCertificate",
            .handler = &answerWell,
            .certificate = Certificate::selfSigned,
            .words = "self-signed"},
        {.name = "certificateForAnotherName",
            .handler = &answerWell,
            .certificate = Certificate::forAnotherName,
            .words = "no alternative certificate subject name|does not match"},
    };
}

} // namespace

std::vector<Fault> connectionFaults()
{
    std::vector<Fault> all = lostConnections();
    for (const auto& more : {slowConnections(), certificates()})
        all.insert(all.end(), more.begin(), more.end());
    return all;
}

} // namespace skyvane::test
