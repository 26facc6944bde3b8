#include "alerts/watch_list.h"

#include "platform/text/unicode.h"

#include <algorithm>
#include <optional>

namespace skyvane {

namespace {

/// What is longer is no callsign, registration, designator or address, and not worth the comparing.
constexpr std::size_t longestName = 64; // Bytes.

/// Wildcard matching with one step back: to the last star, which then takes a character more.
bool isMatch(std::string_view pattern, std::string_view text)
{
    std::size_t at = 0;
    std::size_t star = std::string_view::npos;
    std::size_t taken = 0; // By that star, up to here.
    for (std::size_t next = 0; next < text.size();) {
        if (at < pattern.size() && pattern[at] == '*') {
            star = at++;
            taken = next;
        } else if (at < pattern.size() && pattern[at] == text[next]) {
            ++at;
            ++next;
        } else if (star != std::string_view::npos) {
            at = star + 1;
            next = ++taken;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', at) == std::string_view::npos;
}

} // namespace

WatchList::WatchList(const std::vector<std::string>& patterns)
{
    for (const std::string& pattern : patterns) {
        std::string upper = Unicode::uppercased(Unicode::trimmed(pattern));
        if (!upper.empty())
            m_patterns.push_back(std::move(upper));
    }
}

bool WatchList::names(const Aircraft& aircraft) const
{
    const auto isNamed = [&](const std::optional<std::string>& text) { return text && matches(*text); };
    return !isEmpty()
        && (matches(aircraft.hex) || isNamed(aircraft.flight) || isNamed(aircraft.registration)
            || isNamed(aircraft.typeCode));
}

bool WatchList::matches(std::string_view text) const
{
    const std::string_view trimmed = Unicode::trimmed(text);
    if (trimmed.empty() || trimmed.size() > longestName)
        return false;
    const std::string upper = Unicode::uppercased(trimmed);
    return std::ranges::any_of(
        m_patterns, [&](const std::string& pattern) { return isMatch(pattern, upper); });
}

} // namespace skyvane
