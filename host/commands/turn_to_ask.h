#pragma once

#include "platform/files/shared_turn.h"

namespace skyvane {

/// Rate limiter of the commands that ask the sources: waits until no program of this user asks, and the last
/// to do so has been done for five seconds. One that takes long is waited for no longer than two answers may
/// take.
std::optional<SharedTurn> turnToAsk(const std::filesystem::path& file);

} // namespace skyvane
