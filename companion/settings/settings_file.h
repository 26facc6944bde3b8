#pragma once

#include "core/config/shared_state.h"
#include "desk/file_watch.h"

#include <QObject>

#include <chrono>
#include <optional>

namespace skyvane {

/// The configuration file as the page knows it: what it last held, and word of every change that others make.
class SettingsFile : public QObject {
    Q_OBJECT
public:
    using Content = std::optional<SharedState::Config>;

    /// `quiet`: how long nothing has to happen around the file before it is read again.
    explicit SettingsFile(std::chrono::milliseconds quiet, QObject* parent = nullptr);

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
    FileWatch m_watch;
    Content m_content;
};

} // namespace skyvane
