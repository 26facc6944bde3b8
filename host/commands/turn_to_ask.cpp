#include "host/commands/turn_to_ask.h"

#include <thread>

namespace skyvane {

std::optional<SharedTurn> turnToAsk(const std::filesystem::path& file)
{
    constexpr std::chrono::seconds rest{5};
    constexpr std::chrono::seconds patience{20};
    constexpr std::chrono::milliseconds pause{100};
    const auto end = std::chrono::steady_clock::now() + patience;
    while (true) {
        std::optional<SharedTurn> turn = SharedTurn::take(file, rest);
        if (turn || std::chrono::steady_clock::now() >= end)
            return turn;
        std::this_thread::sleep_for(pause);
    }
}

} // namespace skyvane
