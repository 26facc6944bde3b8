#include "desk/file_watch.h"

#include "paint/to_qt.h"

#include <sys/stat.h>
#include <utility>

namespace skyvane {

FileWatch::FileWatch(
    std::filesystem::path file, std::function<void()> changed, std::chrono::milliseconds quiet)
    : m_file(std::move(file)), m_changed(std::move(changed)), m_last(stamp())
{
    m_debounce.setSingleShot(true);
    m_debounce.setInterval(quiet);
    m_debounce.callOnTimeout([this] { look(); });
    const auto wait = [this] { m_debounce.start(); };
    QObject::connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_debounce, wait);
    QObject::connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_debounce, wait);
    watch();
}

std::optional<FileWatch::Stamp> FileWatch::stamp() const
{
    struct stat status { };
    if (::stat(m_file.c_str(), &status) != 0)
        return std::nullopt;
    std::error_code ignored;
    return Stamp{
        .changed = std::filesystem::last_write_time(m_file, ignored),
        .size = static_cast<std::uintmax_t>(status.st_size),
        .inode = status.st_ino,
    };
}

/// The file where it is there, and the innermost folder above it that is.
void FileWatch::watch()
{
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    if (!watched.isEmpty())
        m_watcher.removePaths(watched);
    std::error_code ignored;
    std::filesystem::path folder = m_file.parent_path();
    while (!std::filesystem::is_directory(folder, ignored) && folder.has_relative_path())
        folder = folder.parent_path();
    m_watcher.addPath(toQString(folder.string()));
    if (std::filesystem::exists(m_file, ignored))
        m_watcher.addPath(toQString(m_file.string()));
}

void FileWatch::look()
{
    watch();
    if (std::exchange(m_last, stamp()) != m_last)
        m_changed();
}

} // namespace skyvane
