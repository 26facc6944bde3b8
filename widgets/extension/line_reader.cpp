#include "widgets/extension/line_reader.h"

#include <poll.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <utility>

namespace skyvane::Extension {

LineReader::LineReader(int input, int interrupt) : m_input(input), m_interrupt(interrupt) { }

std::optional<LineReader::Line> LineReader::next()
{
    while (true) {
        if (auto line = takeLine())
            return line;
        if (readMore())
            continue;
        if (m_pending.empty())
            return std::nullopt;
        m_searched = 0;
        return Line{.text = std::exchange(m_pending, {})};
    }
}

std::optional<LineReader::Line> LineReader::takeLine()
{
    while (true) {
        const std::size_t end = m_pending.find('\n', m_searched);
        const bool isWhole = end != std::string::npos;
        const std::size_t length = isWhole ? end : m_pending.size();
        const bool wasPassedOver = m_passesOver;
        if (!isWhole && !wasPassedOver && length <= longestLine) {
            m_searched = length;
            return std::nullopt;
        }
        Line line{.text = length <= longestLine ? m_pending.substr(0, length) : "",
            .isTooLong = length > longestLine};
        m_pending.erase(0, isWhole ? length + 1 : length);
        m_searched = 0;
        m_passesOver = !isWhole;
        if (!wasPassedOver)
            return line;
        if (!isWhole)
            return std::nullopt;
    }
}

bool LineReader::readMore()
{
    std::array<pollfd, 2> awaited{{
        {.fd = m_input, .events = POLLIN, .revents = 0},
        {.fd = m_interrupt, .events = POLLIN, .revents = 0},
    }};
    while (poll(awaited.data(), awaited.size(), -1) < 0) { } // Only a signal ends it so.
    std::array<char, 4096> bytes;
    ssize_t count = 0;
    if (awaited[1].revents == 0) {
        do
            count = read(m_input, bytes.data(), bytes.size());
        while (count < 0 && errno == EINTR);
    }
    if (count <= 0)
        return false;
    m_pending.append(bytes.data(), static_cast<std::size_t>(count));
    return true;
}

} // namespace skyvane::Extension
