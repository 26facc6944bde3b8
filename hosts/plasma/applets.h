#pragma once

#include "desk/file_watch.h"
#include "host/alerts/alert_teller.h"
#include "host/desktop/desktop.h"
#include "host/desktop/offered_widgets.h"
#include "host/extension/schedule.h"
#include "host/session/sleep_watch.h"
#include "hosts/plasma/applet_service.h"
#include "paint/font_measurer.h"
#include "ui/layout/geometry.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace skyvane {

/// The applets of one shell: one extension, one schedule and so one sky for all of them. Needs a
/// QGuiApplication.
class Applets {
public:
    /// Called with what to show; with null while the user has turned the widgets off.
    using Show = std::function<void(const ShownEntry* content)>;

    /// `areShown`: whether they are from the start on.
    Applets(const ExtensionProgram& program, DesktopSetup setup, const QDBusConnection& bus, bool areShown);
    Applets(const Applets&) = delete;
    Applets& operator=(const Applets&) = delete;

    /// Those of this process, with the programs that are installed: there for as long as somebody holds them.
    static std::shared_ptr<Applets> shared();

    /// One more, of this kind and so large; its number.
    int add(const std::string& kind, const Size& size, Show show);
    /// It shows the largest family that fits.
    void resize(int applet, const Size& size);
    void remove(int applet);
    void refresh(int applet);

    void open(const URL& link, const QString& activationToken) { m_setup.open(link, activationToken); }
    void openSettings(const QString& activationToken) { m_setup.settings(activationToken); }

    /// Null for a widget that the extension did not list, or has not listed yet.
    const WidgetInfo* find(const std::string& kind) const { return m_offered.find(kind); }
    const FontMeasurer& fonts() const { return m_fonts; }

private:
    struct Applet {
        std::string kind;
        Size size;
        Show show;
        std::optional<WidgetFamily> family{}; ///< Absent while nothing is asked for it.
    };

    void setShown(bool areShown);
    void refreshAll();
    void learnWidgets();
    void placeAll();
    void place(int id, Applet& applet);
    void tellAlerts(const QDBusConnection& bus);

    DesktopSetup m_setup;
    FontMeasurer m_fonts;
    ExtensionProcess m_extension;
    OfferedWidgets m_offered;
    Schedule m_schedule;
    FileWatch m_configuration;
    SleepWatch m_sleep;
    AppletService m_service;
    std::optional<AlertTeller> m_alerts;
    std::map<int, Applet> m_applets;
    int m_lastId = 0;
    bool m_areShown;
    bool m_isLearning = false; ///< Which widgets there are.
};

} // namespace skyvane
