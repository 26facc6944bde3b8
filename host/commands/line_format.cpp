#include "host/commands/line_format.h"

#include "host/commands/command.h"
#include "platform/text/printable.h"

#include <algorithm>
#include <array>

namespace skyvane {

namespace {

struct Placeholder {
    std::string_view name;
    std::string NearestWords::*word;
};

constexpr std::array placeholders{
    Placeholder{.name = "callsign", .word = &NearestWords::callsign},
    Placeholder{.name = "identity", .word = &NearestWords::identity},
    Placeholder{.name = "type", .word = &NearestWords::type},
    Placeholder{.name = "registration", .word = &NearestWords::registration},
    Placeholder{.name = "distance", .word = &NearestWords::distance},
    Placeholder{.name = "altitude", .word = &NearestWords::altitude},
    Placeholder{.name = "direction", .word = &NearestWords::direction},
    Placeholder{.name = "arrow", .word = &NearestWords::arrow},
    Placeholder{.name = "count", .word = &NearestWords::count},
    Placeholder{.name = "time", .word = &NearestWords::time},
};

std::string NearestWords::*wordOf(std::string_view name)
{
    const auto found = std::ranges::find(placeholders, name, &Placeholder::name);
    if (found != placeholders.end())
        return found->word;
    std::string known;
    for (const Placeholder& placeholder : placeholders)
        known.append(known.empty() ? "" : ", ").append(placeholder.name);
    throw UsageError{"unknown placeholder \"" + std::string{name} + "\": known are " + known};
}

/// Without blanks at both ends, and no two in a row.
std::string tidy(const std::string& text)
{
    std::string tidied;
    for (const char c : text) {
        if (c != ' ' || (!tidied.empty() && tidied.back() != ' '))
            tidied += c;
    }
    if (tidied.ends_with(' '))
        tidied.pop_back();
    return tidied;
}

} // namespace

LineFormat LineFormat::parse(std::string_view text)
{
    LineFormat format;
    while (!text.empty()) {
        const std::size_t brace = text.find_first_of("{}");
        format.m_pieces.push_back({.text = std::string{text.substr(0, brace)}});
        if (brace == std::string_view::npos)
            break;
        text.remove_prefix(brace);
        if (text.starts_with("{{") || text.starts_with("}}")) {
            format.m_pieces.push_back({.text = std::string{text.substr(0, 1)}});
            text.remove_prefix(2);
            continue;
        }
        const std::size_t end = text.find('}');
        if (end == 0 || end == std::string_view::npos)
            throw UsageError{"a brace without its other in the format; {{ and }} stand for braces"};
        format.m_pieces.push_back({.word = wordOf(text.substr(1, end - 1))});
        text.remove_prefix(end + 1);
    }
    return format;
}

std::string LineFormat::fill(const NearestWords& words) const
{
    std::string line;
    for (const Piece& piece : m_pieces)
        line += piece.word == nullptr ? piece.text : words.*piece.word;
    return tidy(Unicode::oneLine(line, Unicode::longestLine));
}

} // namespace skyvane
