#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QTimer>

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>

namespace skyvane {

/// The file in which the widgets' configuration stands, below a home folder.
std::filesystem::path configurationFile(const std::filesystem::path& homeFolder);

/// Tells when a file appears, changes or goes, its folders included, once things have calmed down.
class ConfigurationWatch {
public:
    ConfigurationWatch(std::filesystem::path file, std::function<void()> changed,
        std::chrono::milliseconds calm = std::chrono::milliseconds{200});

private:
    /// What tells one content from the next without reading it.
    struct Trait {
        std::filesystem::file_time_type changed;
        std::uintmax_t size;
        std::uintmax_t inode;

        bool operator==(const Trait&) const = default;
    };

    std::optional<Trait> trait() const;
    void watch();
    void look();

    std::filesystem::path m_file;
    std::function<void()> m_changed;
    std::optional<Trait> m_last;
    QFileSystemWatcher m_watcher;
    QTimer m_calm;
};

} // namespace skyvane
