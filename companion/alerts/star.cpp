#include "companion/alerts/star.h"

#include "platform/text/unicode.h"
#include "protocol/limits.h"

#include <algorithm>
#include <string_view>

namespace skyvane::Star {

namespace {

constexpr std::size_t longestName = 64; // Bytes; what is longer names nobody.

bool isSame(std::string_view one, std::string_view other)
{
    const std::string_view name = Unicode::trimmed(one);
    return !name.empty() && Unicode::uppercased(name) == Unicode::uppercased(Unicode::trimmed(other));
}

bool names(const std::string& pattern, const Aircraft& aircraft)
{
    return isSame(pattern, aircraft.hex) || isSame(pattern, aircraft.registration.value_or(""));
}

bool isName(std::string_view text)
{
    return !text.empty() && text.size() <= longestName && text.find('*') == std::string_view::npos;
}

} // namespace

bool isOn(const std::vector<std::string>& watch, const Aircraft& aircraft)
{
    return std::ranges::any_of(watch, [&](const std::string& pattern) { return names(pattern, aircraft); });
}

std::vector<std::string> toggled(std::vector<std::string> watch, const Aircraft& aircraft)
{
    if (std::erase_if(watch, [&](const std::string& pattern) { return names(pattern, aircraft); }) > 0)
        return watch;
    const std::string registration = aircraft.registration.value_or("");
    const std::string name{
        Unicode::trimmed(isName(Unicode::trimmed(registration)) ? registration : aircraft.hex)};
    if (isName(name) && watch.size() < Protocol::Limits::mostPatterns)
        watch.push_back(name);
    return watch;
}

} // namespace skyvane::Star
