#pragma once

#include "companion/look/preferences.h"
#include "companion/position/place_search.h"
#include "companion/settings/settings.h"
#include "core/views/sky_entry.h"
#include "paint/font_measurer.h"

#include <QDBusConnection>
#include <QWidget>

class QBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace skyvane {

class ChoiceRow;
class ColorField;
class RadiusField;
class UnitField;
class WidgetPreviews;

/// The page on which home, radius, unit and colour are chosen, all three widgets beside the choices, or
/// where there is no room, below. It scrolls where it is given less room than it wants. Whatever is complete
/// and valid is written without being asked.
class SettingsPage : public QWidget {
    Q_OBJECT
public:
    /// What tests replace of the machine and of time.
    struct Surroundings {
        PlaceSearch::Load loadPlaces; ///< On another thread.
        Settings::Pace pace{};
    };

    /// `systemBus`: where the system's location service is looked for.
    SettingsPage(const FontMeasurer& fonts, const QDBusConnection& systemBus, Preferences& preferences,
        QWidget* parent = nullptr);
    SettingsPage(const FontMeasurer& fonts, const QDBusConnection& systemBus, Preferences& preferences,
        const Surroundings& surroundings, QWidget* parent = nullptr);

    /// The user's own sky, for the widgets beside the choices.
    void showSky(const SkyEntry& own);

signals:
    /// The configuration was written or removed here.
    void changed();

protected:
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* choices(QWidget* home);
    void addSection(QVBoxLayout& column, const QString& title, QWidget* field, QLabel* note = nullptr);
    QWidget* closing();
    void connectFields();
    void choose(const std::function<void(SettingsDraft&)>& change, Settings::Settled settled);
    void arrange();
    void showDraft();
    void showState(const QString& state);
    void askToForget();

    Settings m_settings;
    Preferences& m_preferences;
    QLabel* m_greeting;
    QLabel* m_radiusNote;
    RadiusField* m_radius;
    UnitField* m_unit;
    ChoiceRow* m_measures;
    ColorField* m_color;
    QLabel* m_state; ///< Says whether the last choice was saved.
    QPushButton* m_forget;
    WidgetPreviews* m_previews;
    QBoxLayout* m_columns;
    QWidget* m_chosen;
};

} // namespace skyvane
