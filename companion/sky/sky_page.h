#pragma once

#include "companion/alerts/alert_store.h"
#include "companion/feed/sky_feed.h"
#include "companion/look/heading.h"
#include "companion/look/preferences.h"
#include "paint/font_measurer.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QStackedWidget;

namespace skyvane {

class EmptySky;
class NoticeBar;
class SkyTable;
class ScopeView;

/// The aircraft around home as a list, the scope beside it where there is room.
class SkyPage : public QWidget {
    Q_OBJECT
public:
    SkyPage(SkyFeed& feed, AlertStore& alerts, Preferences& preferences, const FontMeasurer& fonts,
        QWidget* parent = nullptr);

    Heading heading() const;

    /// Shows why a link could not be followed, until the user dismisses it; an empty text shows nothing.
    void showLinkProblem(const QString& text);

    void focusFilter();
    /// Gives the list the keyboard.
    void focusList();

signals:
    void headingChanged();
    void aircraftActivated(const QString& hex);
    void settingsWanted();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void layOut(QWidget* footer);
    void showReport();
    void showListOrWords();
    void toggleStar(const QString& hex);

    SkyFeed& m_feed;
    AlertStore& m_alerts;
    Preferences& m_preferences;
    QLineEdit* m_filter;
    NoticeBar* m_linkProblem;
    NoticeBar* m_feedProblem;
    QStackedWidget* m_stack;
    SkyTable* m_table;
    EmptySky* m_empty;
    ScopeView* m_scope;
    QLabel* m_range;
    QCheckBox* m_map;
};

} // namespace skyvane
