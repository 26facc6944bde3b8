#pragma once

#include "companion/position/place_search.h"
#include "companion/settings/settings.h"
#include "desk/display_list_view.h"

#include <QDBusConnection>

class QLabel;

namespace skyvane {

class MarkedLineEdit;
class PlaceField;
class PositionField;

/// Where home is: by name, by position, and what it is called, beside the scope around it.
class HomeSection : public QWidget {
    Q_OBJECT
public:
    HomeSection(Settings& settings, PlaceSearch::Load load, const FontMeasurer& fonts,
        const QDBusConnection& systemBus, QWidget* parent = nullptr);

private:
    QWidget* fields();
    void connectFields();
    void setHome(const std::optional<Coordinate>& position, Settings::Settled settled);
    void rename(const QString& label);
    void showDraft();

    Settings& m_settings;
    QLabel* m_placeNote;
    QLabel* m_positionNote;
    QLabel* m_nameNote;
    PlaceField* m_place;
    PositionField* m_position;
    MarkedLineEdit* m_name;
    DisplayListView* m_scope;
    std::optional<std::string> m_label; ///< As last shown.
};

} // namespace skyvane
