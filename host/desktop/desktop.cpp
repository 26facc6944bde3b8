#include "host/desktop/desktop.h"

#include "desk/text.h"
#include "host/desktop/first_widgets.h"
#include "host/desktop/gallery.h"
#include "host/desktop/screens.h"
#include "host/desktop/widget_menu.h"
#include "host/session/way_of_session.h"

#include <QApplication>
#include <QMenu>

#include <algorithm>
#include <typeinfo>
#include <utility>

namespace skyvane {

Desktop::Desktop(ExtensionProcess& extension, const DesktopSetup& setup, std::unique_ptr<DesktopWay> way)
    : m_open(setup.open)
    , m_settings(setup.settings)
    , m_extension(extension)
    , m_offered(extension)
    , m_placed(setup.hostFile)
    , m_windows(m_fonts, std::move(way))
    , m_schedule(
          m_extension,
          [this](int widget, const ShownEntry& content) {
              if (WidgetWindow* window = m_windows.find(widget))
                  window->showContent(content);
          },
          setup.turn)
    , m_configuration(setup.configuration, [this] { m_schedule.refreshAll(); })
    , m_sleep(QDBusConnection::systemBus(), [this] { m_schedule.lookAtClock(); })
    , m_root([this] { m_windows.restore(m_placed.all()); },
          [this] {
              QMetaObject::invokeMethod(
                  &m_context, [this] { followWindowManager(); }, Qt::QueuedConnection);
          })
{
    Screens::onChange(m_context, [this] { m_windows.restore(m_placed.all()); });
    followAreas();
    if (setup.alerts)
        tellAlerts(*setup.alerts);
    start(setup);
}

Desktop::~Desktop()
{
    m_windows.clear();
    m_gallery.reset();
    m_undo.take();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Another one may have been started in place of the last, to which the widgets are other windows.
void Desktop::followWindowManager()
{
    auto way = wayOfSession();
    const DesktopWay& next = *way;
    const DesktopWay& present = m_windows.way();
    if (typeid(next) == typeid(present) || next.problem())
        return;
    m_gallery.reset();
    m_undo.take();
    m_windows.clear();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_windows.follow(std::move(way));
    followAreas();
    showAll();
}

void Desktop::followAreas()
{
    m_windows.way().onAreaChange([this] { m_windows.restore(m_placed.all()); });
}

void Desktop::start(const DesktopSetup& setup)
{
    m_windows.setMovable(!m_placed.isLocked());
    if (m_placed.isFirstStart()) {
        for (const WidgetTarget& target : firstWidgets())
            place(target, m_windows.freeFrame(target.family, m_windows.primaryScreen()));
        std::error_code ignored;
        if (!std::filesystem::exists(setup.configuration, ignored))
            setup.welcome();
    } else {
        showAll();
    }
    if (m_placed.all().empty())
        showGallery(); // Nothing else would lead to it.
    else
        learnWidgets();
}

void Desktop::tellAlerts(const AlertSetup& setup)
{
    const auto choose = [this] { m_schedule.setAlertRules(m_alerts->rules()); };
    m_alerts.emplace(setup, QDBusConnection::sessionBus(), QDBusConnection::systemBus(), choose);
    choose();
    m_schedule.onAlerts([this](const std::vector<Alert>& alerts) { m_alerts->take(alerts); });
}

void Desktop::learnWidgets()
{
    m_offered.learn([this] {
        for (const PlacedWidget& widget : m_placed.all())
            name(widget);
        if (m_gallery)
            m_gallery->showWidgets(m_offered.all());
    });
}

std::optional<int> Desktop::add(const WidgetTarget& target, const std::optional<QRect>& frame)
{
    const std::optional<WidgetTarget> offered = m_offered.target(target);
    if (!offered)
        return std::nullopt;
    const bool isGallery = m_gallery && m_gallery->isVisible();
    const auto screen = m_windows.screenInUse(isGallery ? m_gallery.get() : nullptr);
    return place(*offered, frame ? m_windows.snapped(*frame) : m_windows.freeFrame(target.family, screen));
}

int Desktop::place(const WidgetTarget& target, const QRect& frame)
{
    const Placement nowhere{.screen = {}, .corner = ScreenCorner::topRight, .inset = {}};
    const PlacedWidget widget
        = m_placed.add(target, Placing::placement(frame, m_windows.screens()).value_or(nowhere));
    show(widget);
    return widget.id;
}

bool Desktop::remove(int widget)
{
    const WidgetWindow* window = m_windows.find(widget);
    const QRect frame = window != nullptr ? window->geometry() : QRect{};
    m_schedule.remove(widget);
    m_windows.close(widget);
    const auto removed = m_placed.remove(widget);
    if (removed)
        offerUndo(*removed, frame);
    return removed.has_value();
}

void Desktop::offerUndo(const PlacedWidget& widget, const QRect& frame)
{
    const WidgetInfo* info = m_offered.find(widget.target.kind);
    UndoCard::Actions actions{.undo = [this] { undo(); }};
    if (m_placed.all().empty())
        actions.add = [this] { showGallery(); };
    m_undo.make(widget, toQString(info != nullptr ? info->displayName : widget.target.kind), frame, m_windows,
        actions);
}

bool Desktop::undo()
{
    const auto removed = m_undo.take();
    if (removed)
        show(m_placed.putBack(*removed));
    return removed.has_value();
}

void Desktop::setLocked(bool isLocked)
{
    m_placed.setLocked(isLocked);
    m_windows.setMovable(!isLocked);
}

bool Desktop::moveTo(int widget, const std::string& screen)
{
    const PlacedWidget* placed = m_placed.find(widget);
    const auto& all = m_windows.screens();
    const auto target = std::ranges::find(all, screen, &ScreenArea::name);
    if (placed == nullptr || target == all.end())
        return false;
    const QRect frame = m_windows.freeFrame(placed->target.family, *target);
    m_placed.move(widget, Placing::placement(frame, all).value_or(placed->placement));
    m_windows.restore(m_placed.all());
    return true;
}

void Desktop::showGallery()
{
    if (!m_gallery) {
        m_gallery.reset(new Gallery{m_extension, m_fonts, m_windows.way(),
            [this](const WidgetTarget& target, const std::optional<QRect>& frame) { add(target, frame); }});
        m_gallery->showWidgets(m_offered.all());
        if (m_offered.all().empty())
            learnWidgets();
    }
    m_gallery->show();
    m_gallery->raise();
    m_gallery->activateWindow();
}

void Desktop::show(const PlacedWidget& widget)
{
    m_windows.open(widget, actionsOf(widget.id));
    name(widget);
    m_schedule.add(widget.id, widget.target);
}

void Desktop::showAll()
{
    for (const PlacedWidget& widget : m_placed.all())
        show(widget);
    m_windows.restore(m_placed.all()); // Only now is it known which of them are in each other's way.
}

void Desktop::name(const PlacedWidget& widget)
{
    const WidgetInfo* info = m_offered.find(widget.target.kind);
    WidgetWindow* window = m_windows.find(widget.id);
    if (info != nullptr && window != nullptr)
        window->setNames(toQString(info->displayName), toQString(info->description));
}

WidgetActions Desktop::actionsOf(int widget)
{
    return {
        .open = m_open,
        .snapped = [this, widget](const QRect& frame) { return m_windows.snapped(frame, widget); },
        .dropped = [this, widget] { rememberFrame(widget); },
        .menu = [this, widget](const QPoint& place, std::uint32_t time) { popUpMenu(widget, place, time); },
        .passKeyboard = [this, widget](bool isNext) { return m_windows.giveKeyboard(widget, isNext); },
    };
}

void Desktop::resize(int widget, WidgetFamily family)
{
    const PlacedWidget* placed = m_placed.find(widget);
    if (placed == nullptr || placed->target.family == family)
        return;
    m_placed.resize(widget, family);
    show(*placed);
}

void Desktop::rememberFrame(int widget)
{
    const WidgetWindow* window = m_windows.find(widget);
    if (window == nullptr)
        return;
    if (const auto placement = Placing::placement(window->geometry(), m_windows.screens()))
        m_placed.move(widget, *placement);
}

WidgetMenuActions Desktop::menuActionsOf(int widget, WidgetWindow& window, std::uint32_t time)
{
    return {
        .resize = [this, widget](WidgetFamily family) { resize(widget, family); },
        .moveTo = [this, widget](const std::string& screen) { moveTo(widget, screen); },
        .lock = [this](bool isLocked) { setLocked(isLocked); },
        .refresh = [this, widget] { m_schedule.refresh(widget); },
        .add = [this] { showGallery(); },
        .remove = [this, widget] { remove(widget); },
        .settings = [this, &window, time] { m_settings(m_windows.way().activationToken(window, time)); },
        .quit = [] { QCoreApplication::quit(); },
    };
}

void Desktop::popUpMenu(int widget, const QPoint& place, std::uint32_t time)
{
    const PlacedWidget* placed = m_placed.find(widget);
    WidgetWindow* window = m_windows.find(widget);
    if (placed == nullptr || window == nullptr)
        return;
    const WidgetInfo* info = m_offered.find(placed->target.kind);
    const WidgetMenuChoices choices{
        .families = info != nullptr ? info->families : std::vector{placed->target.family},
        .family = placed->target.family,
        .screens = m_windows.screens(),
        .screen = placed->placement.screen,
        .isLocked = m_placed.isLocked(),
    };
    QMenu* menu = makeWidgetMenu(*window, choices, menuActionsOf(widget, *window, time));
    menu->popup(window->mapToGlobal(m_windows.menuPlace(*window, place, menu->sizeHint())));
}

} // namespace skyvane
