#pragma once

#include "desk/alerts/alert_choices.h"
#include "desk/alerts/notifications.h"
#include "desk/file_watch.h"
#include "host/alerts/told_alerts.h"
#include "host/extension/wall_clock_timer.h"
#include "host/session/do_not_disturb.h"
#include "platform/net/url.h"
#include "protocol/alert.h"

#include <QHash>
#include <QObject>

#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

namespace skyvane {

/// What alerts are told with.
struct AlertSetup {
    std::filesystem::path choices; ///< The file of `AlertChoices`.
    std::filesystem::path told; ///< The file of `ToldAlerts`.
    /// Opens the link of an alert. `token`: the activation token of the click.
    std::function<void(const URL&, const QString& token)> open;
};

/// Tells the user of alerts by desktop notifications, each at its moment: one of an id in half an hour, three
/// at once at most, the third with a word on how many more there are. What comes due while the session is
/// locked, notifications are inhibited or quiet hours are kept is dropped; when it still holds at the next
/// refresh, that brings it again. Sleeps from one moment to the next, and for good when there is none.
class AlertTeller : public QObject {
    Q_OBJECT
public:
    static constexpr std::size_t mostAtOnce = 3;
    /// Alerts of moments that are no further apart are told at once.
    static constexpr std::chrono::seconds together{30};
    /// After it an alert is out of date: the machine slept, say.
    static constexpr std::chrono::seconds late{60};

    AlertTeller(AlertSetup setup, QDBusConnection session, const QDBusConnection& system,
        std::function<void()> rulesChanged);

    /// What to ask the extension for; absent when the user wants to be told of nothing.
    std::optional<AlertRules> rules() const { return m_choices.rules(); }

    /// Takes the place of what was to be told and is not yet.
    void take(const std::vector<Alert>& alerts);

private:
    void readChoices(const std::function<void()>& rulesChanged);
    void tellDue();
    void tell(const std::vector<Alert>& due);
    void show(const Alert& alert, std::size_t more);
    void open(const QString& key, const QString& token);
    void arm();

    AlertSetup m_setup;
    AlertChoices m_choices;
    FileWatch m_watch;
    ToldAlerts m_told;
    DoNotDisturb m_doNotDisturb;
    Notifications m_notifications;
    std::vector<Alert> m_waiting; ///< The most urgent first.
    std::optional<WallClockTimer> m_timer; ///< Absent until there is a moment to wait for.
    QHash<QString, URL> m_links; ///< Of what was shown, by its key.
};

} // namespace skyvane
