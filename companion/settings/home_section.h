#pragma once

#include "companion/position/place_search.h"
#include "companion/settings/settings.h"

#include <QDBusConnection>
#include <QWidget>

class QLabel;
class QPushButton;

namespace skyvane {

class EarthMap;
class MarkedLineEdit;
class PlaceField;
class PositionField;

/// Where home is: by name, by position, or on the map, and what it is called.
class HomeSection : public QWidget {
    Q_OBJECT
public:
    HomeSection(Settings& settings, PlaceSearch::Load load, const QDBusConnection& systemBus,
        QWidget* parent = nullptr);

private:
    QWidget* fields();
    void connectFields();
    void choosePlace(const Place& place);
    void setHome(const Coordinate& position, Settings::Settled settled);
    void goBackToSaved();
    void describe(Settings::Settled settled);
    bool isOwnName(const SettingsDraft& draft, const PlaceIndex& places) const;
    void rename(const QString& label);
    void remember();
    void undo();
    void showDraft();

    Settings& m_settings;
    QLabel* m_placeNote;
    QLabel* m_positionNote;
    QLabel* m_nameNote;
    PlaceField* m_place;
    PositionField* m_position;
    MarkedLineEdit* m_name;
    EarthMap* m_map;
    QPushButton* m_undo;
    std::optional<std::string> m_label; ///< As last shown.
    std::optional<Coordinate> m_chosen; ///< Of the place in the line, while home is there.
    std::string m_givenName; ///< The last that nobody typed.
    std::optional<SettingsDraft> m_before; ///< What undoing goes back to.
    /// What there was before the positions that are not described yet: while the places are loaded, more than
    /// one is typed.
    std::optional<SettingsDraft> m_undescribed;
};

} // namespace skyvane
