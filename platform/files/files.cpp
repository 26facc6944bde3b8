#include "platform/files/files.h"

#include "platform/files/descriptor.h"
#include "platform/pinned.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <utility>
#include <vector>

namespace skyvane::Files {

namespace {

std::optional<std::filesystem::path> homeInUserDatabase()
{
    constexpr std::size_t enoughForAnyEntry = 65536;
    std::vector<char> buffer(enoughForAnyEntry);
    passwd entry{};
    passwd* found = nullptr;
    if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || found == nullptr)
        return std::nullopt;
    if (found->pw_dir == nullptr || *found->pw_dir == '\0')
        return std::nullopt;
    return found->pw_dir;
}

/// Where the file's links lead, be a file there already or not; the first of them when they lead in a circle.
std::filesystem::path withoutLinks(const std::filesystem::path& file)
{
    constexpr int most = 40; // As the kernel follows.
    std::filesystem::path place = file;
    for (int followed = 0; followed < most; ++followed) {
        std::error_code isNoLink;
        const std::filesystem::path next = std::filesystem::read_symlink(place, isNoLink);
        if (isNoLink)
            return place;
        place = place.parent_path() / next;
    }
    return file;
}

constexpr std::string_view draftEnding = ".XXXXXX"; ///< The last six are any letters and digits.

std::string draftBeginning(const std::filesystem::path& file)
{
    return "." + file.filename().string();
}

bool isDraftOf(const std::filesystem::path& file, const std::string& name)
{
    const std::string beginning = draftBeginning(file) + ".";
    return name.starts_with(beginning) && name.size() == draftBeginning(file).size() + draftEnding.size();
}

bool isAbandoned(const std::filesystem::directory_entry& entry)
{
    constexpr std::chrono::minutes longestWriting{1};
    std::error_code error;
    return entry.symlink_status(error).type() == std::filesystem::file_type::regular
        && std::filesystem::file_time_type::clock::now() - entry.last_write_time(error) > longestWriting
        && !error;
}

/// A draft is its owner's alone until then.
bool takeModeOf(const std::filesystem::path& file, int draft)
{
    struct stat status { };
    return stat(file.c_str(), &status) != 0 || fchmod(draft, status.st_mode & 0777) == 0;
}

} // namespace

std::filesystem::path homeFolder()
{
    if (const HomeFolder* pinned = Pinned<HomeFolder>::current())
        return pinned->path;
    if (auto home = homeInUserDatabase())
        return *home;
    const char* home = std::getenv("HOME");
    return home != nullptr && *home != '\0' ? home : "/";
}

std::optional<std::string> read(const std::filesystem::path& file, std::size_t limit)
{
    const Descriptor descriptor{open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY)};
    struct stat status { };
    if (!descriptor.isOpen() || fstat(descriptor.number(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    if (std::cmp_greater(status.st_size, limit))
        return std::nullopt;

    std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
    std::size_t length = 0;
    while (length < bytes.size()) {
        const ssize_t got = ::read(descriptor.number(), bytes.data() + length, bytes.size() - length);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return std::nullopt;
        if (got == 0)
            break;
        length += static_cast<std::size_t>(got);
    }
    bytes.resize(length);
    return bytes;
}

bool writeAtomically(const std::filesystem::path& place, std::string_view bytes)
{
    const std::filesystem::path file = withoutLinks(place);
    std::string draft = file.parent_path() / draftBeginning(file).append(draftEnding);
    Descriptor descriptor{mkostemp(draft.data(), O_CLOEXEC)};
    if (!descriptor.isOpen())
        return false;
    const bool isWritten = writeAll(descriptor.number(), bytes) && takeModeOf(file, descriptor.number())
        && fsync(descriptor.number()) == 0 && descriptor.close();
    if (isWritten && rename(draft.c_str(), file.c_str()) == 0)
        return true;
    unlink(draft.c_str());
    return false;
}

void removeAbandonedDrafts(const std::filesystem::path& place)
{
    const std::filesystem::path file = withoutLinks(place);
    std::error_code error;
    std::vector<std::filesystem::path> drafts;
    for (std::filesystem::directory_iterator entry{file.parent_path(), error}, end; !error && entry != end;
         entry.increment(error)) {
        if (isDraftOf(file, entry->path().filename()) && isAbandoned(*entry))
            drafts.push_back(entry->path());
    }
    for (const std::filesystem::path& draft : drafts)
        std::filesystem::remove(draft, error);
}

} // namespace skyvane::Files
