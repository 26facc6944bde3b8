#include "companion/settings/settings_file.h"

#include <filesystem>
#include <utility>

namespace skyvane {

SettingsFile::SettingsFile(std::chrono::milliseconds calm, QObject* parent) : QObject(parent)
{
    m_calm.setSingleShot(true);
    m_calm.setInterval(calm);
    m_calm.callOnTimeout(this, [this] { look(); });
    const auto stir = [this] { m_calm.start(); };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, stir);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, stir);
    watch();
    m_content = SharedState::read();
}

/// The folder, or the innermost one above it that is there, and the file, which may be written in place.
void SettingsFile::watch()
{
    std::error_code ignored;
    std::filesystem::path folder = SharedState::directory();
    QStringList wanted;
    if (const auto file = folder / "widget-config.json"; std::filesystem::exists(file, ignored))
        wanted += QString::fromStdString(file.string());
    while (!std::filesystem::is_directory(folder, ignored) && folder.has_relative_path())
        folder = folder.parent_path();
    wanted += QString::fromStdString(folder.string());
    if (const QStringList watched = m_watcher.files() + m_watcher.directories(); !watched.isEmpty())
        m_watcher.removePaths(watched);
    m_watcher.addPaths(wanted);
}

void SettingsFile::look()
{
    watch();
    Content now = SharedState::read();
    if (std::exchange(m_content, std::move(now)) != m_content)
        emit changedByOthers();
}

bool SettingsFile::write(const Content& content)
{
    if (content)
        SharedState::write(*content);
    else
        SharedState::clear();
    watch();
    m_content = SharedState::read();
    return m_content == content;
}

} // namespace skyvane
