#pragma once

#include "core/model/aircraft.h"

#include <string>
#include <string_view>
#include <vector>

namespace skyvane {

/// Patterns of aircraft to look out for: a callsign, a registration, a type designator or an address, without
/// regard to case; `*` stands for any characters. An empty pattern is nobody's.
class WatchList {
public:
    explicit WatchList(const std::vector<std::string>& patterns);

    bool isEmpty() const { return m_patterns.empty(); }
    bool names(const Aircraft& aircraft) const;

private:
    bool matches(std::string_view text) const;

    std::vector<std::string> m_patterns; ///< In upper case, without blanks at their ends.
};

} // namespace skyvane
