#include "platform/sandbox/file_access.h"

#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace skyvane::FileAccess {

namespace {

/// As newer headers have it; what an older kernel does not know must be zero.
struct Ruleset {
    std::uint64_t files;
    std::uint64_t network;
    std::uint64_t scopes;
};

constexpr std::uint64_t bindTCP = 1;
constexpr std::uint64_t connectTCP = 2;
constexpr std::uint64_t abstractUnixSocket = 1;

/// All kinds of access to files that the version knows.
std::uint64_t everyAccess(int version)
{
    constexpr std::uint64_t ofFirstVersion = (LANDLOCK_ACCESS_FS_MAKE_SYM << 1) - 1;
    constexpr std::uint64_t refer = LANDLOCK_ACCESS_FS_REFER; // Since version 2.
    constexpr std::uint64_t truncate = refer << 1; // 3
    constexpr std::uint64_t deviceControl = refer << 2; // 5
    return ofFirstVersion | (version >= 2 ? refer : 0) | (version >= 3 ? truncate : 0)
        | (version >= 5 ? deviceControl : 0);
}

void allowReading(int ruleset, const std::filesystem::path& place)
{
    const int opened = open(place.c_str(), O_PATH | O_CLOEXEC);
    struct stat status { };
    if (opened >= 0 && fstat(opened, &status) == 0) {
        const std::uint64_t folders = S_ISDIR(status.st_mode) ? LANDLOCK_ACCESS_FS_READ_DIR : 0;
        const landlock_path_beneath_attr rule{
            .allowed_access = LANDLOCK_ACCESS_FS_READ_FILE | folders, .parent_fd = opened};
        syscall(SYS_landlock_add_rule, ruleset, LANDLOCK_RULE_PATH_BENEATH, &rule, 0);
    }
    if (opened >= 0)
        close(opened);
}

} // namespace

int version()
{
    const long known
        = syscall(SYS_landlock_create_ruleset, nullptr, std::size_t{0}, LANDLOCK_CREATE_RULESET_VERSION);
    return static_cast<int>(std::max(known, 0L));
}

bool restrict(std::span<const std::filesystem::path> readable, Connections connections)
{
    const int known = version();
    Ruleset wanted{.files = everyAccess(known), .network = 0, .scopes = 0};
    const bool isAlone = connections == Connections::none;
    if (known >= 4)
        wanted.network = bindTCP | (isAlone ? connectTCP : 0);
    if (known >= 6 && isAlone)
        wanted.scopes = abstractUnixSocket;
    const int ruleset
        = known > 0 ? static_cast<int>(syscall(SYS_landlock_create_ruleset, &wanted, sizeof wanted, 0)) : -1;
    if (ruleset < 0)
        return false;
    for (const std::filesystem::path& place : readable)
        allowReading(ruleset, place);
    const bool isRestricted = syscall(SYS_landlock_restrict_self, ruleset, 0) == 0;
    close(ruleset);
    return isRestricted;
}

} // namespace skyvane::FileAccess
