#pragma once

#include "core/config/shared_state.h"
#include "desk/file_watch.h"

#include <QObject>

#include <chrono>
#include <optional>

namespace skyvane {

/// The configuration file as the page knows it: its content when last read, and a signal when others change
/// it.
class SettingsFile : public QObject {
    Q_OBJECT
public:
    using Content = std::optional<SharedState::Config>;

    /// `quiet`: debounce time; the file is read again when nothing has happened around it for so long.
    explicit SettingsFile(std::chrono::milliseconds quiet, QObject* parent = nullptr);

    /// As of the last reading or writing.
    const Content& content() const { return m_content; }

    /// Reads the file now, and signals a change as ever.
    void look();

    /// Writes the content, and reads it back; absent content removes the file. Returns whether the file holds
    /// it now.
    bool write(const Content& content);

signals:
    /// Somebody else changed what it holds; `content` is the new one.
    void changedByOthers();

private:
    FileWatch m_watch;
    Content m_content;
};

} // namespace skyvane
