#pragma once

#include "desk/file_watch.h"
#include "host/alerts/alert_teller.h"
#include "host/desktop/offered_widgets.h"
#include "host/desktop/undo_offer.h"
#include "host/desktop/widget_windows.h"
#include "host/extension/schedule.h"
#include "host/placing/widget_store.h"
#include "host/session/root_watch.h"
#include "host/session/sleep_watch.h"

namespace skyvane {

class Gallery;
struct WidgetMenuActions;

/// What a desktop of widgets is made from.
struct DesktopSetup {
    std::filesystem::path hostFile;
    std::filesystem::path configuration; ///< The file whose changes refresh the widgets.
    /// Activation tokens are those of the click; empty where there is none.
    std::function<void(const URL&, const QString& activationToken)> open;
    std::function<void()> welcome; ///< On the first start, when there is no configuration yet.
    std::function<void(const QString& activationToken)> settings;
    std::optional<AlertSetup> alerts{}; ///< Without it nothing is told.
    /// The file on which the user's programs agree who asks the sources; empty for a desktop that asks nobody
    /// first.
    std::filesystem::path turn{};
};

/// The placed widgets with their windows, their menus and the gallery. Needs a QApplication.
class Desktop {
public:
    Desktop(ExtensionProcess& extension, const DesktopSetup& setup, std::unique_ptr<DesktopWay> way);
    ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    const std::vector<PlacedWidget>& placed() const { return m_placed.all(); }

    /// Whether they will stand there the next time, too: false where the file could not be written.
    bool isSaved() const { return m_placed.isSaved(); }

    /// Places a widget and returns its id; the kind may be its last component alone. Absent for a widget, or
    /// a family of one, that the extension did not list. Without a frame it stands where there is room on the
    /// screen in use.
    std::optional<int> add(const WidgetTarget& target, const std::optional<QRect>& frame = std::nullopt);
    /// Returns whether there was a widget of this id. For ten seconds that can be undone.
    bool remove(int widget);
    /// Puts the widget back that was removed last; whether there was one.
    bool undo();

    /// Whether no widget can be dragged.
    void setLocked(bool isLocked);

    const std::vector<ScreenArea>& screens() const { return m_windows.screens(); }
    /// To a place on this screen; whether there are both.
    bool moveTo(int widget, const std::string& screen);

    void refreshAll() { m_schedule.refreshAll(); }
    void showGallery();
    /// Gives the keyboard to the first widget, from which Tab leads on; whether there is one.
    bool giveKeyboard() { return m_windows.giveKeyboard(); }

private:
    void followWindowManager();
    void followAreas();
    void start(const DesktopSetup& setup);
    void tellAlerts(const AlertSetup& setup);
    void learnWidgets();
    int place(const WidgetTarget& target, const QRect& frame);
    void show(const PlacedWidget& widget);
    void showAll();
    void name(const PlacedWidget& widget);
    WidgetActions actionsOf(int widget);
    void resize(int widget, WidgetFamily family);
    void rememberFrame(int widget);
    void offerUndo(const PlacedWidget& widget, const QRect& frame);
    WidgetMenuActions menuActionsOf(int widget, WidgetWindow& window, std::uint32_t time);
    void popUpMenu(int widget, const QPoint& place, std::uint32_t time);

    std::function<void(const URL&, const QString& activationToken)> m_open;
    std::function<void(const QString& activationToken)> m_settings;
    FontMeasurer m_fonts;
    ExtensionProcess& m_extension;
    OfferedWidgets m_offered;
    WidgetStore m_placed;
    WidgetWindows m_windows;
    WindowPointer<Gallery> m_gallery; ///< Null until it is first shown.
    UndoOffer m_undo;
    Schedule m_schedule;
    FileWatch m_configuration;
    SleepWatch m_sleep;
    RootWatch m_root;
    std::optional<AlertTeller> m_alerts;
    QObject m_context; ///< Ends the connections to screens.
};

} // namespace skyvane
