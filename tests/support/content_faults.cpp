#include "tests/support/fault.h"

#include <string_view>
#include <utility>

namespace skyvane::test {

namespace {

Fault content(std::string name, std::string body, std::string words = "not JSON")
{
    return {.name = std::move(name),
        .handler = [body = std::move(body)](
                       const RecordedRequest&, Connection& connection) { connection.answer({.body = body}); },
        .words = std::move(words)};
}

/// A text of many equal pieces, a multiple of 5,000 of them, made while it is sent.
struct Repetition {
    std::string beginning;
    std::string piece;
    std::size_t count;
    std::string end;
};

Fault repeated(std::string name, const Repetition& text, std::string words)
{
    const auto handler = [text](const RecordedRequest&, Connection& connection) {
        constexpr std::size_t atOnce = 5000;
        std::string many;
        for (std::size_t made = 0; made < atOnce; ++made)
            many += text.piece;
        connection.send("HTTP/1.1 200 OK\r\n\r\n" + text.beginning);
        for (std::size_t made = 0; made < text.count; made += atOnce)
            connection.send(many);
        connection.send(text.end);
        connection.close();
    };
    return {.name = std::move(name), .handler = handler, .words = std::move(words)};
}

std::string inUTF16(std::string_view text)
{
    std::string wide = "\xff\xfe";
    for (const char character : text)
        wide += {character, '\0'};
    return wide;
}

std::string goodAnswerWith(std::string_view text, std::string_view instead)
{
    std::string body = goodAnswer;
    return body.replace(body.find(text), text.size(), instead);
}

std::vector<Fault> brokenTexts()
{
    const std::string good = goodAnswer;
    return {
        content("nulBytesOnly", std::string(1000, '\0')),
        content("nulByteInText", goodAnswerWith("GOOD1", {"A\0B", 3})),
        content("nulByteAtTheEnd", good + '\0'),
        content("badUTF8", goodAnswerWith("GOOD1", "\xc3\x28")),
        content("overlongUTF8", goodAnswerWith("GOOD1", "\xc0\xaf")),
        content("surrogateInUTF8", goodAnswerWith("GOOD1", "\xed\xa0\x80")),
        content("UTF16", inUTF16(good)),
        content("byteOrderMarkOfUTF16", "\xfe\xff" + good),
        content("byteOrderMarkAlone", "\xef\xbb\xbf"),
    };
}

std::vector<Fault> otherTexts()
{
    const std::string good = goodAnswer;
    return {
        content("empty", ""),
        content("page", "<!DOCTYPE html><html><body>Checking your browser</body></html>"),
        content("twoDocuments", good + good),
        content("torn", good.substr(0, good.size() / 2)),
        content("aNumber", "1", "expected an object"),
        content("depthOf100000", std::string(100'000, '[') + std::string(100'000, ']')),
        content("numberOfAMillionDigits", std::string(1'000'000, '1'), "expected an object"),
    };
}

std::vector<Fault> largeTexts()
{
    // An identity of a million characters is one all the same.
    Fault identity = content("identityOfAMegabyte", goodAnswerWith("abc001", std::string(1'000'000, 'a')));
    identity.outcome = Fault::Outcome::delivered;
    const std::string open = std::string{goodAnswer}.substr(0, std::string_view{goodAnswer}.rfind('}'));
    Fault dense = repeated("fourMillionNumbersAside", {open + R"(,"x":[1)", ",1", 4'000'000, "]}"}, "");
    dense.outcome = Fault::Outcome::delivered;
    constexpr const char* tooLong = "longer than 8 MiB";
    return {
        std::move(identity),
        std::move(dense),
        repeated("aHundredThousandAircraft",
            {R"({"ac":[)", R"({"hex":"abc001","lat":1,"lon":2},)", 100'000, R"({"hex":"a"}]})"},
            "ac: has more than 50,000 elements"),
        repeated("aMillionAircraft", {R"({"ac":[)", R"({"hex":"abc001"},)", 1'000'000, R"({"hex":"a"}]})"},
            tooLong),
        repeated("millionsOfNumbers", {"[1", ",1", 5'000'000, "]"}, tooLong),
        repeated("millionsOfBrackets", {"[", "[],", 4'000'000, "[]]"}, tooLong),
    };
}

} // namespace

std::vector<Fault> contentFaults()
{
    std::vector<Fault> all = brokenTexts();
    for (const auto& more : {otherTexts(), largeTexts()})
        all.insert(all.end(), more.begin(), more.end());
    return all;
}

std::vector<Fault> faults()
{
    std::vector<Fault> all;
    for (const auto& group : {connectionFaults(), answerFaults(), compressionFaults(), contentFaults()})
        all.insert(all.end(), group.begin(), group.end());
    return all;
}

} // namespace skyvane::test
