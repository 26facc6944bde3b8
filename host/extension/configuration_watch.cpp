#include "host/extension/configuration_watch.h"

#include <sys/stat.h>
#include <utility>

namespace skyvane {

std::filesystem::path configurationFile(const std::filesystem::path& homeFolder)
{
    return homeFolder / "Library/Application Support/Skyvane/widget-config.json";
}

ConfigurationWatch::ConfigurationWatch(
    std::filesystem::path file, std::function<void()> changed, std::chrono::milliseconds calm)
    : m_file(std::move(file)), m_changed(std::move(changed)), m_last(trait())
{
    m_calm.setSingleShot(true);
    m_calm.setInterval(calm);
    m_calm.callOnTimeout([this] { look(); });
    const auto stir = [this] { m_calm.start(); };
    QObject::connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_calm, stir);
    QObject::connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_calm, stir);
    watch();
}

std::optional<ConfigurationWatch::Trait> ConfigurationWatch::trait() const
{
    struct stat status { };
    if (::stat(m_file.c_str(), &status) != 0)
        return std::nullopt;
    std::error_code ignored;
    return Trait{
        .changed = std::filesystem::last_write_time(m_file, ignored),
        .size = static_cast<std::uintmax_t>(status.st_size),
        .inode = status.st_ino,
    };
}

/// The file where it is there, and the innermost folder above it that is.
void ConfigurationWatch::watch()
{
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    if (!watched.isEmpty())
        m_watcher.removePaths(watched);
    std::error_code ignored;
    std::filesystem::path folder = m_file.parent_path();
    while (!std::filesystem::is_directory(folder, ignored) && folder.has_relative_path())
        folder = folder.parent_path();
    m_watcher.addPath(QString::fromStdString(folder.string()));
    if (std::filesystem::exists(m_file, ignored))
        m_watcher.addPath(QString::fromStdString(m_file.string()));
}

void ConfigurationWatch::look()
{
    watch();
    if (std::exchange(m_last, trait()) != m_last)
        m_changed();
}

} // namespace skyvane
