#pragma once

#include <QFileSystemWatcher>
#include <QTimer>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>

namespace skyvane {

/// Tells when a file appears, changes or goes, its folders included: debounced, once it has been quiet around
/// it for a while.
class FileWatch {
public:
    FileWatch(std::filesystem::path file, std::function<void()> changed,
        std::chrono::milliseconds quiet = std::chrono::milliseconds{200});

private:
    /// Tells a changed file from an unchanged one without reading it.
    struct Stamp {
        std::filesystem::file_time_type changed;
        std::uintmax_t size;
        std::uintmax_t inode;

        bool operator==(const Stamp&) const = default;
    };

    std::optional<Stamp> stamp() const;
    void watch();
    void look();

    std::filesystem::path m_file;
    std::function<void()> m_changed;
    std::optional<Stamp> m_last; ///< Absent while there is no file.
    QFileSystemWatcher m_watcher;
    QTimer m_debounce;
};

} // namespace skyvane
