#pragma once

#include "desk/file_watch.h"
#include "host/desktop/widget_window.h"
#include "host/extension/schedule.h"
#include "host/placing/host_file.h"
#include "host/session/compositing_watch.h"
#include "host/session/sleep_watch.h"

#include <memory>

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

/// The placed widgets with their windows. Needs a QApplication.
class Desktop {
public:
    Desktop(ExtensionProcess& extension, const DesktopSetup& setup);
    ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    const std::vector<PlacedWidget>& placed() const { return m_placed; }

    /// Its id; the kind may be its last component alone. Absent for a widget, or a family of one, that the
    /// extension did not list. Without a frame it stands where there is room on the screen in use.
    std::optional<int> add(const WidgetTarget& target, const std::optional<QRect>& frame = std::nullopt);
    /// Whether there was one of this id.
    bool remove(int widget);
    void refreshAll() { m_schedule.refreshAll(); }
    void showGallery();

private:
    /// Windows may be in the middle of an event when they go.
    struct DeleteLater {
        void operator()(QWidget* window) const;
    };
    using Window = std::unique_ptr<WidgetWindow, DeleteLater>;

    void learnWidgets();
    int nextId() const;
    int place(const WidgetTarget& target, const QRect& frame);
    QRect freeFrame(WidgetFamily family, const std::optional<ScreenArea>& screen) const;
    std::optional<ScreenArea> screenInUse() const;
    std::vector<QRect> framesBut(int widget) const;
    void openWindow(const PlacedWidget& widget);
    WidgetActions actionsOf(int widget);
    void nameWindow(const PlacedWidget& widget);
    void resize(int widget, WidgetFamily family);
    void rememberFrame(int widget);
    void restoreFrames();
    void shapeWindows();
    QRect snapped(int widget, const QRect& frame) const;
    void popUpMenu(int widget, const QPoint& place);
    PlacedWidget* find(int widget);
    const WidgetInfo* infoOf(const std::string& kind) const;

    std::function<void(const URL&)> m_open;
    std::function<void()> m_settings;
    FontMeasurer m_fonts;
    ExtensionProcess& m_extension;
    HostFile m_file;
    std::vector<WidgetInfo> m_known;
    std::vector<PlacedWidget> m_placed;
    std::map<int, Window> m_windows;
    std::unique_ptr<Gallery, DeleteLater> m_gallery;
    Schedule m_schedule;
    FileWatch m_configuration;
    SleepWatch m_sleep;
    CompositingWatch m_compositing;
    bool m_isComposited = m_compositing.isActive();
    QObject m_context; ///< Ends the connections to screens.
};

} // namespace skyvane
