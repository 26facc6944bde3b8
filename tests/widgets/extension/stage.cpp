#include "tests/widgets/extension/stage.h"

#include "tests/support/service_hosts.h"
#include "tests/widgets/extension/surroundings.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace skyvane::test {

namespace {

struct Pipe {
    int reading;
    int writing;
};

Pipe makePipe()
{
    std::array<int, 2> ends;
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    return {.reading = ends[0], .writing = ends[1]};
}

void closeOnce(int& descriptor)
{
    if (descriptor >= 0)
        close(descriptor);
    descriptor = -1;
}

} // namespace

Stage::Stage()
    : m_surroundings(Surroundings::make())
    , m_authority(m_surroundings->authorityFile())
    , m_server(m_authority, feedHosts(), m_surroundings->serverPort())
{
    m_authority.linkIn(m_surroundings->authorityFile().parent_path());
    const Pipe input = makePipe();
    const Pipe output = makePipe();
    m_input = input.writing;
    m_output = output.reading;
    m_surroundings->start(m_server, input.reading, output.writing);
}

Stage::~Stage()
{
    closeInput();
    closeOutput();
    m_surroundings.reset();
}

void Stage::setConfiguration(std::string_view text)
{
    const auto folder = m_surroundings->homeFolder() / "Library/Application Support/Skyvane";
    std::filesystem::create_directories(folder);
    std::ofstream{folder / "widget-config.json"} << text;
}

void Stage::sayLine(std::string_view line)
{
    const std::string text = std::string{line} + '\n';
    for (std::string_view rest = text; !rest.empty();) {
        const ssize_t count = write(m_input, rest.data(), rest.size());
        if (count < 0)
            throw std::runtime_error("the extension does not read");
        rest.remove_prefix(static_cast<std::size_t>(count));
    }
}

void Stage::ask(const nlohmann::json& id, std::string_view method, const nlohmann::json& params)
{
    nlohmann::json request{{"jsonrpc", "2.0"}, {"id", id}, {"method", method}};
    if (!params.is_null())
        request["params"] = params;
    sayLine(request.dump());
}

void Stage::cancel(const nlohmann::json& id)
{
    sayLine(nlohmann::json{{"jsonrpc", "2.0"}, {"method", "cancel"}, {"params", {{"id", id}}}}.dump());
}

void Stage::closeInput()
{
    closeOnce(m_input);
}

void Stage::closeOutput()
{
    closeOnce(m_output);
}

nlohmann::json Stage::hear(std::chrono::milliseconds patience)
{
    const std::string line = hearLine(patience);
    return line.empty() ? nlohmann::json(nullptr) : nlohmann::json::parse(line);
}

std::string Stage::hearLine(std::chrono::milliseconds patience)
{
    std::size_t end = 0;
    while ((end = m_heard.find('\n')) == std::string::npos) {
        pollfd answer{.fd = m_output, .events = POLLIN, .revents = 0};
        std::array<char, 4096> bytes;
        const ssize_t count = poll(&answer, 1, static_cast<int>(patience.count())) > 0
            ? read(m_output, bytes.data(), bytes.size())
            : 0;
        if (count <= 0)
            return {};
        m_heard.append(bytes.data(), static_cast<std::size_t>(count));
    }
    std::string line = m_heard.substr(0, end);
    m_heard.erase(0, end + 1);
    return line;
}

std::optional<int> Stage::exitStatus(std::chrono::milliseconds within)
{
    return m_surroundings->exitStatus(within);
}

} // namespace skyvane::test
