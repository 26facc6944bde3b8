// A widget extension that behaves, or misbehaves, as the name that it is started by says.

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iostream>
#include <map>
#include <string>
#include <utility>

namespace {

const std::string widgets = R"({"protocol":1,"widgets":[
{"kind":"org.example.clock","displayName":"Clock","description":"The time.","families":["small","medium","gigantic"]},
{"kind":"org.example.moon","displayName":"Moon\tand\nstars","description":"The moon.","families":["large"]}]})";

const std::string entry
    = R"({"date":1700000000.25,"isSample":false,"background":[0,0,1,1],"url":"skyvane://open",
"view":{"type":"frame","maxWidth":"infinity","maxHeight":"infinity",
"child":{"type":"symbol","name":"house","font":{"size":60},"color":[1,0,0,1]}}})";

const std::string strangeEntry
    = R"({"date":0,"isSample":true,"background":[0,0,1,1],"url":"no url at all","view":
{"type":"vstack","children":[{"type":"hologram","depth":3},{"type":"symbol","name":"zeppelin","font":{"size":60},
"color":[1,0,0,1]},{"type":"canvas","aspectRatio":2,"items":[{"type":"spiral"}]}]}})";

/// Two links, one above the other, each half of the content.
const std::string linkedEntry
    = R"({"date":1700000000.25,"isSample":false,"background":[0.1,0.2,0.3,1],"url":"skyvane://open",
"view":{"type":"vstack","children":[
{"type":"link","url":"skyvane://aircraft/first","child":{"type":"frame","maxWidth":"infinity","maxHeight":"infinity",
"child":{"type":"symbol","name":"airplane","font":{"size":40},"color":[0,1,0,1]}}},
{"type":"link","url":"skyvane://aircraft/second","child":{"type":"frame","maxWidth":"infinity","maxHeight":"infinity",
"child":{"type":"symbol","name":"house","font":{"size":40},"color":[0,1,1,1]}}}]}})";

/// A line of words, and two links with some.
const std::string wordedEntry
    = R"({"date":1700000000.25,"isSample":false,"background":[0.1,0.2,0.3,1],"url":"skyvane://open",
"view":{"type":"vstack","children":[
{"type":"text","text":"Two aircraft","font":{"size":10},"color":[1,1,1,1]},
{"type":"link","url":"skyvane://aircraft/first","child":
{"type":"text","text":"BAW123","font":{"size":10},"color":[1,1,1,1]}},
{"type":"link","url":"skyvane://aircraft/second","child":
{"type":"text","text":"DLH456","font":{"size":10},"color":[1,1,1,1]}}]}})";

/// A sky board without a row, and a nearest aircraft where there is none, or no home.
std::string pictured(const std::string& symbol, const std::string& words)
{
    return R"({"date":1700000000.25,"isSample":false,"background":[0,0,0,1],"view":{"type":"vstack","children":[
{"type":"symbol","name":")"
        + symbol + R"(","font":{"size":15},"color":[1,1,1,1]},{"type":"text","text":")" + words
        + R"(","font":{"size":10},"color":[1,1,1,1]}]}})";
}

std::string countedEntry(const std::string& id)
{
    return R"({"date":1700000000.25,"isSample":false,"background":[0.1,0.2,0.3,1],"view":{"type":"text",
"text":"refresh )"
        + id.substr(id.size() - 1) + R"(","font":{"size":10},"color":[1,1,1,1]}})";
}

std::string onOneLine(std::string text)
{
    std::erase(text, '\n');
    return text;
}

/// What the request asks for; the one that the host writes needs no parser.
bool asks(const std::string& request, const std::string& method)
{
    return request.find("\"" + method + "\"") != std::string::npos;
}

std::string idOf(const std::string& request)
{
    const std::size_t start = request.find("\"id\":") + 5;
    return request.substr(start, request.find_first_of(",}", start) - start);
}

void answer(const std::string& id, const std::string& result)
{
    std::cout << R"({"jsonrpc":"2.0","id":)" << id << R"(,"result":)" << onOneLine(result) << "}"
              << std::endl;
}

std::string timeline(const std::string& shown, const std::string& reload = "1700000900")
{
    return R"({"entries":[)" + shown + R"(],"reload":{"policy":"after","date":)" + reload + "}}";
}

std::size_t widgetCount(const std::string& request)
{
    std::size_t count = 0;
    for (std::size_t at = 0; (at = request.find("\"kind\"", at)) != std::string::npos; ++at)
        ++count;
    return count;
}

void answerTogether(const std::string& request, const std::function<std::string(std::size_t index)>& make)
{
    std::string list;
    for (std::size_t index = 0; index < widgetCount(request); ++index)
        list += (index == 0 ? "" : ",") + make(index);
    answer(idOf(request), R"({"timelines":[)" + list + "]}");
}

void good(const std::string& request, const std::string& shown)
{
    if (asks(request, "widgets.list"))
        answer(idOf(request), widgets);
    else if (asks(request, "widgets.snapshot") || asks(request, "widgets.placeholder"))
        answer(idOf(request), R"({"entry":)" + shown + "}");
    else if (asks(request, "widgets.timelines"))
        answerTogether(request, [&](std::size_t) { return timeline(shown); });
    else
        answer(idOf(request), timeline(shown));
}

/// 700 emergencies under hostile names, for whoever asks for alerts.
std::string hostileAlerts()
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    const std::string at = std::to_string(std::chrono::duration_cast<std::chrono::seconds>(now).count());
    std::string list;
    for (int index = 0; index < 700; ++index) {
        const std::string id = std::to_string(index);
        list.append(index == 0 ? "" : ",")
            .append(R"({"id":"emergency/)" + id)
            .append(R"(","at":)" + at)
            .append(R"(,"title":"Emergency","body":"<b>No. )" + id + R"(</b> & <img src='x'>)")
            .append(5'000, 'A')
            .append(R"(","url":"skyvane://aircraft/)" + id + "\"}");
    }
    return list;
}

void alarm(const std::string& request)
{
    std::string list;
    for (std::size_t index = 0; index < widgetCount(request); ++index)
        list += (index == 0 ? "" : ",") + timeline(entry);
    const std::string alerts = asks(request, "alerts") ? R"(,"alerts":[)" + hostileAlerts() + "]" : "";
    answer(idOf(request), R"({"timelines":[)" + list + "]" + alerts + "}");
}

void refuse(const std::string& request)
{
    std::cout << R"({"jsonrpc":"2.0","id":)" << idOf(request)
              << R"(,"error":{"code":-32602,"message":"no such\nkind"}})" << std::endl;
}

/// So many entries, a millisecond apart from now on.
std::string hurriedEntries()
{
    constexpr int count = 1500;
    const auto now
        = std::chrono::duration<double>{std::chrono::system_clock::now().time_since_epoch()}.count();
    std::string entries;
    for (int index = 0; index < count; ++index) {
        entries += index == 0 ? "" : ",";
        entries += R"({"date":)" + std::to_string(now + index / 1000.0)
            + R"(,"isSample":false,"background":[0,0,1,1],"view":{"type":"spacer"}})";
    }
    return entries;
}

/// Names and words with what steers a terminal, and one that is long.
void steer(const std::string& request)
{
    if (!asks(request, "widgets.list")) {
        std::cout << R"({"jsonrpc":"2.0","id":)" << idOf(request)
                  << R"(,"error":{"code":-32602,"message":"\u001b[31m\u009b\u202e)"
                  << std::string(200'000, 'x') << R"("}})" << std::endl;
        return;
    }
    answer(idOf(request),
        R"({"protocol":1,"widgets":[{"kind":"org.example.\u001b[2J","displayName":"\u202eClock\u009b31m\r",)"
        R"("description":"The\u0007 time.","families":["small"]}]})");
}

using Behaviour = std::function<void(const std::string& request)>;

/// Lists its widgets well, then does this.
Behaviour later(Behaviour behaviour)
{
    return [=](const std::string& request) {
        asks(request, "widgets.list") ? good(request, entry) : behaviour(request);
    };
}

/// Does this when it is asked for several timelines, and everything else well.
Behaviour together(Behaviour behaviour)
{
    return [=](const std::string& request) {
        asks(request, "widgets.timelines") ? behaviour(request) : good(request, entry);
    };
}

void crash(const std::string&)
{
    std::raise(SIGKILL);
}

/// Of this program, this one included, by its log.
std::ptrdiff_t startsSoFar()
{
    std::ifstream log{std::string{program_invocation_name} + ".log"};
    std::ptrdiff_t count = 0;
    for (std::string line; std::getline(log, line);)
        count += line.ends_with(" start") ? 1 : 0;
    return count;
}

std::map<std::string, Behaviour> behaviours()
{
    return {
        {"good", [](const std::string& request) { good(request, entry); }},
        {"linked", [](const std::string& request) { good(request, linkedEntry); }},
        {"worded", [](const std::string& request) { good(request, wordedEntry); }},
        {"quiet",
            [](const std::string& request) { good(request, pictured("airplane.departure", "Quiet skies")); }},
        {"homeless", [](const std::string& request) { good(request, pictured("house", "Choose a home")); }},
        {"counting", [](const std::string& request) { good(request, countedEntry(idOf(request))); }},
        {"strange", [](const std::string& request) { good(request, strangeEntry); }},
        {"refusing", refuse},
        {"crashing", crash},
        {"crashing-later", later(crash)},
        {"crashing-twice",
            [](const std::string& request) { startsSoFar() <= 2 ? crash(request) : good(request, entry); }},
        {"ending", [](const std::string&) { std::exit(0); }},
        {"silent", later([](const std::string&) {})},
        {"forgetful",
            [](const std::string& request) {
                asks(request, "widgets.placeholder") ? good(request, entry) : refuse(request);
            }},
        {"picky",
            [](const std::string& request) {
                request.find("org.example.unheard-of") != std::string::npos ? refuse(request)
                                                                            : good(request, entry);
            }},
        {"of-two-dates", together([](const std::string& request) {
             answerTogether(
                 request, [](std::size_t index) { // In the year 2100, an hour or ten minutes later.
                     return timeline(entry, index == 0 ? "4102448400" : "4102445400");
                 });
         })},
        {"hurried", together([](const std::string& request) {
             answerTogether(request, [](std::size_t) { return timeline(hurriedEntries(), "4102448400"); });
         })},
        {"steering", [](const std::string& request) { steer(request); }},
        {"sparing", together([](const std::string& request) {
             answer(idOf(request), R"({"timelines":[)" + timeline(entry) + "]}");
         })},
        {"half-empty", together([](const std::string& request) {
             answerTogether(request, [](std::size_t index) { return timeline(index == 0 ? "" : entry); });
         })},
        {"crashing-together", together(crash)},
        {"alarming", together(alarm)},
        {"babbling", later([](const std::string&) { std::cout << "hello there" << std::endl; })},
        {"misnumbering", [](const std::string&) { answer("77", widgets); }},
        {"mistyping", later([](const std::string& request) {
             answer(idOf(request), R"({"entries":[{"date":"soon"}]})");
         })},
        {"empty", later([](const std::string& request) {
             answer(idOf(request), R"({"entries":[],"reload":{"policy":"after","date":1}})");
         })},
        {"huge", later([](const std::string& request) {
             answer(idOf(request), "\"" + std::string(5'000'000, 'x') + "\"");
         })},
        {"reversing",
            [held = std::string{}](const std::string& request) mutable {
                if (held.empty()) {
                    held = request;
                    return;
                }
                good(request, strangeEntry);
                good(std::exchange(held, ""), entry);
            }},
        {"endless", later([](const std::string&) {
             while (std::cout << std::string(4096, 'x')) { }
         })},
    };
}

/// Everything that happened, for the test to read: a line "start", then one a request with its time.
void record(const std::string& path, const std::string& event)
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    std::ofstream{path + ".log", std::ios::app}
        << std::chrono::duration_cast<std::chrono::milliseconds>(now).count() << " " << event << "\n";
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 1)
        return 3;
    const std::string path = argv[0];
    const Behaviour behaviour = behaviours().at(path.substr(path.rfind('/') + 1));
    record(path, "start");
    for (std::string request; std::getline(std::cin, request);) {
        record(path, request);
        behaviour(request);
    }
    record(path, "end");
    return 0;
}
