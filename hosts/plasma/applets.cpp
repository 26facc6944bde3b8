#include "hosts/plasma/applets.h"

#include "desk/autostart.h"
#include "host/service/run_desktop.h"
#include "hosts/plasma/family_choice.h"
#include "platform/files/programs.h"
#include "platform/text/localized.h"
#include "ui/layout/widget_container.h"

#include <QDBusConnection>

#include <utility>

namespace skyvane {

namespace {

/// As the companion keeps it for a shell that would show the widgets in any case.
bool areShownAtLogIn()
{
    AutostartFolders folders = AutostartFolders::standard();
    folders.isShellThere = true;
    return Autostart::isOn(folders);
}

std::shared_ptr<Applets> installed()
{
    const std::filesystem::path folder = SKYVANE_PROGRAMS;
    useCatalogues(Programs::catalogues(folder.parent_path()));
    const Companion companion{
        .program = Programs::companion(folder),
        .environment = QProcessEnvironment::systemEnvironment(),
    };
    return std::make_shared<Applets>(ExtensionProgram{.path = Programs::widgets(folder)},
        standardSetup(companion), QDBusConnection::sessionBus(), areShownAtLogIn());
}

std::vector<WidgetFamily> allFamilies()
{
    return {WidgetContainer::families.begin(), WidgetContainer::families.end()};
}

} // namespace

std::shared_ptr<Applets> Applets::shared()
{
    static std::weak_ptr<Applets> known;
    std::shared_ptr<Applets> applets = known.lock();
    if (!applets)
        known = applets = installed();
    return applets;
}

Applets::Applets(
    const ExtensionProgram& program, DesktopSetup setup, const QDBusConnection& bus, bool areShown)
    : m_setup(std::move(setup))
    , m_extension(program)
    , m_offered(m_extension)
    , m_schedule(
          m_extension,
          [this](int id, const ShownEntry& content) {
              if (const auto applet = m_applets.find(id); applet != m_applets.end() && m_areShown)
                  applet->second.show(&content);
          },
          m_setup.turn)
    , m_configuration(m_setup.configuration, [this] { refreshAll(); })
    , m_sleep(QDBusConnection::systemBus(), [this] { m_schedule.lookAtClock(); })
    , m_service(bus,
          {
              .start = [this] { setShown(true); },
              .quit = [this] { setShown(false); },
              .refresh = [this] { refreshAll(); },
          })
    , m_areShown(areShown)
{
    m_service.setShown(areShown);
    learnWidgets();
    if (m_setup.alerts)
        tellAlerts(bus);
}

int Applets::add(const std::string& kind, const Size& size, Show show)
{
    const int id = ++m_lastId;
    Applet& applet
        = m_applets.emplace(id, Applet{.kind = kind, .size = size, .show = std::move(show)}).first->second;
    if (!m_areShown)
        applet.show(nullptr);
    place(id, applet);
    return id;
}

void Applets::resize(int applet, const Size& size)
{
    Applet& resized = m_applets.at(applet);
    resized.size = size;
    place(applet, resized);
}

void Applets::remove(int applet)
{
    m_schedule.remove(applet);
    m_applets.erase(applet);
}

void Applets::refresh(int applet)
{
    learnWidgets();
    m_schedule.refresh(applet);
}

void Applets::refreshAll()
{
    if (m_areShown)
        m_schedule.refreshAll();
}

void Applets::setShown(bool areShown)
{
    if (std::exchange(m_areShown, areShown) == areShown)
        return;
    m_service.setShown(areShown);
    if (areShown)
        return placeAll();
    for (auto& [id, applet] : m_applets) {
        m_schedule.remove(id);
        applet.family.reset();
        applet.show(nullptr);
    }
}

void Applets::learnWidgets()
{
    if (m_isLearning || !m_offered.all().empty())
        return;
    m_isLearning = true;
    m_offered.learn([this] {
        m_isLearning = false;
        placeAll();
    });
}

void Applets::placeAll()
{
    for (auto& [id, applet] : m_applets)
        place(id, applet);
}

/// Where the extension has not said which families a widget has, any may be one.
void Applets::place(int id, Applet& applet)
{
    if (!m_areShown || m_isLearning)
        return;
    const WidgetInfo* info = m_offered.find(applet.kind);
    const WidgetFamily family = familyFor(applet.size, info != nullptr ? info->families : allFamilies());
    if (std::exchange(applet.family, family) != family)
        m_schedule.add(id, {.kind = applet.kind, .family = family});
}

void Applets::tellAlerts(const QDBusConnection& bus)
{
    const auto choose = [this] { m_schedule.setAlertRules(m_alerts->rules()); };
    m_alerts.emplace(*m_setup.alerts, bus, QDBusConnection::systemBus(), choose);
    choose();
    m_schedule.onAlerts([this](const std::vector<Alert>& alerts) { m_alerts->take(alerts); });
}

} // namespace skyvane
