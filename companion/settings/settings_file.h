#pragma once

#include "core/config/shared_state.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <optional>

namespace skyvane {

/// The configuration file as the page knows it: what it last held, and word of every change that others make.
class SettingsFile : public QObject {
    Q_OBJECT
public:
    using Content = std::optional<SharedState::Config>;

    /// `calm`: how long the folder has to be quiet before the file is read again.
    explicit SettingsFile(std::chrono::milliseconds calm, QObject* parent = nullptr);

    /// When it was last read or written.
    const Content& content() const { return m_content; }

    /// Reads it now. A change is told as any other.
    void look();

    /// Writes and reads back; absent removes it. Whether it took.
    bool write(const Content& content);

signals:
    /// Somebody else changed what it holds; `content` is the new one.
    void changedByOthers();

private:
    void watch();

    Content m_content;
    QFileSystemWatcher m_watcher;
    QTimer m_calm;
};

} // namespace skyvane
