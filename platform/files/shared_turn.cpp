#include "platform/files/shared_turn.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <ctime>

namespace skyvane {

namespace {

using namespace std::chrono;

nanoseconds durationOf(const timespec& time)
{
    return seconds{time.tv_sec} + nanoseconds{time.tv_nsec};
}

/// An empty file has seen no turn yet. A clock that was set back ends a rest.
bool isResting(int file, milliseconds rest)
{
    struct stat status { };
    timespec now{};
    if (fstat(file, &status) != 0 || status.st_size == 0 || clock_gettime(CLOCK_REALTIME, &now) != 0)
        return false;
    const nanoseconds since = durationOf(now) - durationOf(status.st_mtim);
    return since >= -rest && since < rest;
}

} // namespace

std::filesystem::path SharedTurn::file()
{
    const char* folder = std::getenv("XDG_RUNTIME_DIR");
    const std::filesystem::path path{folder != nullptr ? folder : ""};
    return path.is_absolute() ? path / "skyvane-turn" : std::filesystem::path{};
}

std::optional<SharedTurn> SharedTurn::take(const std::filesystem::path& file, milliseconds rest)
{
    constexpr mode_t ownersAlone = 0600;
    const int opened
        = file.empty() ? -1 : open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, ownersAlone);
    if (opened < 0)
        return SharedTurn{-1};
    const bool isLocked = flock(opened, LOCK_EX | LOCK_NB) == 0;
    if (isLocked && !isResting(opened, rest))
        return SharedTurn{opened};
    close(opened);
    return std::nullopt;
}

SharedTurn::~SharedTurn()
{
    if (m_file < 0)
        return;
    constexpr std::array<char, 1> used{'\n'};
    const std::array<timespec, 2> now{
        timespec{.tv_sec = 0, .tv_nsec = UTIME_NOW}, {.tv_sec = 0, .tv_nsec = UTIME_NOW}};
    static_cast<void>(pwrite(m_file, used.data(), used.size(), 0) == 1 && futimens(m_file, now.data()) == 0);
    close(m_file);
}

} // namespace skyvane
