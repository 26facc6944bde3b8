#pragma once

#include "companion/aircraft/aircraft_watch.h"
#include "companion/alerts/alert_store.h"
#include "companion/feed/lookups.h"
#include "companion/look/heading.h"
#include "companion/look/preferences.h"
#include "companion/sky/trails.h"
#include "paint/font_measurer.h"

#include <QUrl>
#include <QWidget>

#include <functional>
#include <optional>

class QBoxLayout;
class QLabel;
class QStackedWidget;

namespace skyvane {

class EmptySky;
class FactGrid;
class NoticeBar;
class PhotoPanel;
class RoutePanel;
class StarButton;
class LiveScope;
class SkyDome;

/// What the page looks things up with.
struct AircraftSources {
    SkyFeed& feed;
    Lookups& lookups;
    AlertStore& alerts;
    Preferences& preferences;
    const Trails& trails;
    std::function<void(const QUrl&)> open; ///< Shows a page on the web.
};

/// One aircraft in detail.
class AircraftPage : public QWidget {
    Q_OBJECT
public:
    AircraftPage(AircraftSources sources, const FontMeasurer& fonts, QWidget* parent = nullptr);

    void showAircraft(const std::string& hex);
    /// Moves on: what is still looked for is called off.
    void leave();

    Heading heading() const;

signals:
    void headingChanged();
    void settingsWanted();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QWidget* makeDetails();
    QWidget* makePictures();
    void showReport();
    void showDetails(const Aircraft& aircraft);
    void toggleStar();
    void showStar();
    void showWhereToLook(const Aircraft& aircraft);
    void showScope(const Aircraft& aircraft);
    void colorAlarm(const Color& color);
    void lookUpFlight(const Aircraft& aircraft);
    void showFlight(const std::optional<RouteAPI::Flight>& flight);
    void showIdentity();

    AircraftSources m_sources;
    std::optional<AircraftWatch> m_watch;
    std::string m_callsign; ///< Whose flight is shown or looked for.
    std::optional<std::string> m_airline; ///< Of that flight.
    Errand m_flight;
    Errand m_photograph;

    NoticeBar* m_notice;
    QStackedWidget* m_stack;
    EmptySky* m_empty;
    QBoxLayout* m_columns;
    PhotoPanel* m_photo;
    QBoxLayout* m_views;
    SkyDome* m_dome;
    LiveScope* m_scope;
    QLabel* m_name;
    StarButton* m_star;
    QLabel* m_identity;
    QLabel* m_alarm;
    RoutePanel* m_routePanel;
    QLabel* m_look;
    QLabel* m_pass;
    FactGrid* m_facts;
};

} // namespace skyvane
