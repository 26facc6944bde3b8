#pragma once

#include "core/model/aircraft.h"
#include "desk/alerts/alert_choices.h"
#include "desk/file_watch.h"

#include <QObject>

#include <filesystem>

namespace skyvane {

/// What the user wants to be told of, in step with its file: a choice is written at once, and what others
/// write there comes back.
class AlertStore : public QObject {
    Q_OBJECT
public:
    explicit AlertStore(std::filesystem::path file, QObject* parent = nullptr);

    const AlertChoices& choices() const { return m_choices; }

    /// Keeps them, here and, if it can be written, in the file.
    void choose(const AlertChoices& choices);

    bool isStarred(const Aircraft& aircraft) const;
    void toggleStar(const Aircraft& aircraft);

    const std::filesystem::path& file() const { return m_file; }

signals:
    void changed();
    void written();
    void failedToWrite();

private:
    void look();

    std::filesystem::path m_file;
    AlertChoices m_choices;
    FileWatch m_watch;
};

} // namespace skyvane
