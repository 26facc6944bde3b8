#pragma once

#include <string_view>

namespace skyvane::StateBlocks {

/// Whether the ICAO 24-bit address, six hexadecimal digits, is in a block of addresses that belongs to a
/// state. Others are made up, by the feed or by a transponder that was set up wrongly.
bool hold(std::string_view hex);

} // namespace skyvane::StateBlocks
