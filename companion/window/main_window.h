#pragma once

#include "companion/feed/lookups.h"
#include "companion/feed/sky_feed.h"
#include "companion/links/incoming_link.h"
#include "companion/look/heading.h"
#include "companion/look/preferences.h"
#include "desk/autostart.h"
#include "paint/font_measurer.h"

#include <QDBusConnection>
#include <QMainWindow>
#include <QUrl>

#include <filesystem>
#include <functional>
#include <string>

class QAction;
class QStackedWidget;

namespace skyvane {

class AircraftPage;
class HeaderBar;
class AlertStore;
class HostControl;
class SkyPage;

/// What the window is made of; all of it outlives the window.
struct WindowParts {
    SkyFeed& feed;
    Lookups& lookups;
    HostControl& host;
    AlertStore& alerts;
    const FontMeasurer& fonts;
    QDBusConnection systemBus; ///< Where the system's location service is.
    std::function<void(const QUrl&)> open; ///< Shows a page on the web.
    std::function<void()> showSampleAlert;
    AutostartFolders autostart;
    std::filesystem::path memory; ///< File in which preferences and the window's place are kept.
};

/// The companion's one window: the sky, one aircraft, or the settings.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindow(const WindowParts& parts);

    void showSky();
    void showAircraft(const std::string& hex);
    void showSettings();
    /// The page "Tell me when…".
    void showAlerts();

    /// Shows what the link leads to; for a broken one the sky with a notice that says why. No request is sent
    /// because of it.
    void follow(const IncomingLink::Target& target);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QAction* addShortcut(const QString& text, const QList<QKeySequence>& keys, std::function<void()> act);
    void makeActions();
    void takePlace();
    QWidget* makeSettings();
    void turnAside(QWidget* page);
    bool isAside() const;
    void turnTo(QWidget* page);
    void goBack();
    void escape();
    bool leaveField();
    void showHeading();
    void watchFeed();
    void showAbout();
    void showShortcuts();

    WindowParts m_parts;
    Preferences m_preferences;
    SkyPage* m_sky;
    AircraftPage* m_aircraft;
    QWidget* m_settings = nullptr; ///< Made when it is first shown.
    QWidget* m_alerts = nullptr; ///< The same.
    QWidget* m_before = nullptr; ///< Where the user was before those.
    std::string m_hex; ///< Of the aircraft that was shown last.
    QStackedWidget* m_stack;
    QAction* m_back = nullptr;
    QAction* m_refresh = nullptr;
    QAction* m_settingsAction = nullptr;
    QAction* m_alertsAction = nullptr;
    QAction* m_about = nullptr;
    QAction* m_shortcuts = nullptr;
    QAction* m_quit = nullptr;
    HeaderBar* m_header = nullptr;
};

} // namespace skyvane
