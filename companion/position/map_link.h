#pragma once

#include "core/model/aircraft.h"

#include <optional>
#include <string_view>

/// Links that were copied from a map on the web. Nobody is asked: the position is in the link, or it is not.
namespace skyvane::MapLink {

/// Whether the text looks like the address of a page, with or without "https://".
bool isLink(std::string_view text);

/// The latitude and longitude that the link shows or marks, of any size; those of a marked place rather than
/// of the map's middle. Absent when the link has none.
std::optional<Coordinate> angles(std::string_view link);

/// Whether the link is one of those shortened by the map's site, which alone knows where it leads.
bool isShortened(std::string_view link);

} // namespace skyvane::MapLink
