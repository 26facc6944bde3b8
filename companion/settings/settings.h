#pragma once

#include "companion/settings/settings_draft.h"
#include "companion/settings/settings_file.h"

#include <QObject>
#include <QTimer>

#include <chrono>

namespace skyvane {

/// What is chosen, kept in step with the file: choices are written debounced, and what others write there
/// comes back.
class Settings : public QObject {
    Q_OBJECT
public:
    /// Debounce times.
    struct Pace {
        std::chrono::milliseconds choosing{300};
        std::chrono::milliseconds typing{1500}; ///< While half a position may be one too.
        std::chrono::milliseconds calm{200}; ///< Quiet around the file before it is read again.
    };

    /// When a choice is written.
    enum class Settled { soon, afterTyping, whenTold };

    explicit Settings(const Pace& pace, QObject* parent = nullptr);
    ~Settings() override; ///< Writes what is not written yet.

    const SettingsDraft& draft() const { return m_draft; }

    /// What a choice that turns out to be none goes back to.
    const SettingsDraft& saved() const { return m_base; }

    void choose(const SettingsDraft& draft, Settled settled = Settled::soon);

    /// Writes now what is complete and not written yet.
    void settle();

    /// Removes the file, and the home with its name from what is chosen.
    void forgetHome();

signals:
    void draftChanged();
    void written(); ///< Or removed.
    void failedToWrite(); ///< The file still holds what it held; the choices stand.

private:
    void follow();

    Pace m_pace;
    SettingsFile m_file;
    SettingsDraft m_draft;
    SettingsDraft m_base; ///< The draft that the file's content makes.
    QTimer m_settling;
};

} // namespace skyvane
