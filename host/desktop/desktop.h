#pragma once

#include "desk/file_watch.h"
#include "host/desktop/offered_widgets.h"
#include "host/desktop/widget_windows.h"
#include "host/extension/schedule.h"
#include "host/placing/widget_store.h"
#include "host/session/sleep_watch.h"

namespace skyvane {

class Gallery;

/// What a desktop of widgets is made from.
struct DesktopSetup {
    std::filesystem::path hostFile;
    std::filesystem::path configuration; ///< The file whose changes refresh the widgets.
    std::function<void(const URL&)> open;
    std::function<void()> welcome; ///< On the first start, when there is no configuration yet.
    std::function<void()> settings;
};

/// The placed widgets with their windows, their menus and the gallery. Needs a QApplication.
class Desktop {
public:
    Desktop(ExtensionProcess& extension, const DesktopSetup& setup);
    ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    const std::vector<PlacedWidget>& placed() const { return m_placed.all(); }

    /// Places a widget and returns its id; the kind may be its last component alone. Absent for a widget, or
    /// a family of one, that the extension did not list. Without a frame it stands where there is room on the
    /// screen in use.
    std::optional<int> add(const WidgetTarget& target, const std::optional<QRect>& frame = std::nullopt);
    /// Returns whether there was a widget of this id.
    bool remove(int widget);
    void refreshAll() { m_schedule.refreshAll(); }
    void showGallery();

private:
    void start(const DesktopSetup& setup);
    void learnWidgets();
    std::optional<ScreenArea> screenInUse() const;
    int place(const WidgetTarget& target, const QRect& frame);
    void show(const PlacedWidget& widget);
    void name(const PlacedWidget& widget);
    WidgetActions actionsOf(int widget);
    void resize(int widget, WidgetFamily family);
    void rememberFrame(int widget);
    void popUpMenu(int widget, const QPoint& place);

    std::function<void(const URL&)> m_open;
    std::function<void()> m_settings;
    FontMeasurer m_fonts;
    ExtensionProcess& m_extension;
    OfferedWidgets m_offered;
    WidgetStore m_placed;
    WidgetWindows m_windows;
    WindowPointer<Gallery> m_gallery; ///< Null until it is first shown.
    Schedule m_schedule;
    FileWatch m_configuration;
    SleepWatch m_sleep;
    QObject m_context; ///< Ends the connections to screens.
};

} // namespace skyvane
