#pragma once

#include "platform/text/text_direction.h"
#include "ui/layout/display_list.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace skyvane {

/// A part of a widget as a screen reader tells it: a link with the texts on it, or a row of text beside every
/// link.
struct SpokenPart {
    std::string text;
    Rect frame; ///< In the list's points.
    std::optional<std::size_t> link{}; ///< Which of the list's links it is.

    bool operator==(const SpokenPart&) const = default;
};

/// The parts of a display list in reading order: from top to bottom, then in the direction of its texts.
std::vector<SpokenPart> spokenParts(const DisplayList& list, TextDirection direction);

} // namespace skyvane
