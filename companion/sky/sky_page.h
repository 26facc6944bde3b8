#pragma once

#include "companion/alerts/alert_store.h"
#include "companion/feed/sky_feed.h"
#include "companion/look/heading.h"
#include "companion/look/preferences.h"
#include "companion/sky/trails.h"
#include "paint/font_measurer.h"

#include <QWidget>

#include <optional>
class QCheckBox;
class QLabel;
class QLineEdit;
class QStackedWidget;

namespace skyvane {

class EmptySky;
class LiveScope;
class NoticeBar;
class SkyTable;

/// The aircraft around home as a list, the scope beside it where there is room.
class SkyPage : public QWidget {
    Q_OBJECT
public:
    SkyPage(SkyFeed& feed, AlertStore& alerts, Preferences& preferences, const FontMeasurer& fonts,
        QWidget* parent = nullptr);

    Heading heading() const;

    const Trails& trails() const { return m_trails; }

    /// Shows why a link could not be followed, until the user dismisses it; an empty text shows nothing.
    void showLinkProblem(const QString& text);

    void focusFilter();
    /// Empties the filter, or, when it is empty, gives the list the keyboard. Whether the keyboard was there.
    bool leaveFilter();
    /// Gives the list the keyboard.
    void focusList();

signals:
    void headingChanged();
    void aircraftActivated(const QString& hex);
    void settingsWanted();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    /// What list and scope were made from.
    struct Shown {
        SkyEntry sky; ///< Without its aircraft.
        unsigned answers;
        Measures measures;

        bool operator==(const Shown&) const = default;
    };

    void setUpFilter();
    void connectParts();
    void layOut();
    void fitScope();
    void showReport();
    void showAircraft();
    void showListOrWords();
    void toggleStar(const QString& hex);
    void showScope();

    SkyFeed& m_feed;
    AlertStore& m_alerts;
    Preferences& m_preferences;
    Trails m_trails;
    std::optional<Shown> m_shown;
    QLineEdit* m_filter;
    NoticeBar* m_linkProblem;
    NoticeBar* m_feedProblem;
    QStackedWidget* m_stack;
    SkyTable* m_table;
    EmptySky* m_empty;
    LiveScope* m_scope;
    QLabel* m_range;
    QCheckBox* m_map;
    QLabel* m_credits; ///< Names the sources, and how each did.
};

} // namespace skyvane
