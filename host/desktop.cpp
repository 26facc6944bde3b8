#include "host/desktop.h"

#include "host/gallery.h"
#include "host/screens.h"
#include "host/widget_menu.h"
#include "paint/widget_card.h"

#include <QApplication>
#include <QMenu>

#include <algorithm>
#include <array>

namespace skyvane {

namespace {

const std::array<WidgetTarget, 3>& firstWidgets()
{
    static const std::array<WidgetTarget, 3> targets{{
        {.kind = "org.skyvane.widgets.nearest", .family = ContainerFamily::small},
        {.kind = "org.skyvane.widgets.radar", .family = ContainerFamily::medium},
        {.kind = "org.skyvane.widgets.skyboard", .family = ContainerFamily::large},
    }};
    return targets;
}

bool offers(const WidgetInfo& widget, ContainerFamily family)
{
    return std::find(widget.families.begin(), widget.families.end(), family) != widget.families.end();
}

} // namespace

void Desktop::DeleteLater::operator()(QWidget* window) const
{
    window->hide();
    window->deleteLater();
}

Desktop::Desktop(const DesktopSetup& setup)
    : m_open(setup.open)
    , m_extension(setup.extension, setup.pace)
    , m_file(setup.hostFile)
    , m_schedule(m_extension,
          [this](int widget, const WidgetContent& content) {
              if (const auto window = m_windows.find(widget); window != m_windows.end())
                  window->second->showContent(content);
          })
    , m_configuration(setup.configuration, [this] { m_schedule.refreshAll(); })
    , m_sleep(QDBusConnection::systemBus(), [this] { m_schedule.lookAtClock(); })
{
    Screens::onChange(m_context, [this] { restoreFrames(); });
    if (auto remembered = m_file.read()) {
        m_placed = std::move(*remembered);
        for (const PlacedWidget& widget : m_placed)
            openWindow(widget);
    } else {
        for (const WidgetTarget& target : firstWidgets())
            place(target);
    }
    learnWidgets();
}

Desktop::~Desktop()
{
    m_windows.clear();
    m_gallery.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Desktop::learnWidgets()
{
    m_extension.list([this](const std::optional<std::vector<WidgetInfo>>& widgets) {
        if (!widgets)
            return;
        m_known = *widgets;
        for (const PlacedWidget& widget : m_placed)
            nameWindow(widget);
        if (m_gallery)
            m_gallery->showWidgets(m_known);
    });
}

std::optional<int> Desktop::add(const WidgetTarget& target)
{
    const WidgetInfo* info = infoOf(target.kind);
    if (info == nullptr || !offers(*info, target.family))
        return std::nullopt;
    return place({.kind = info->kind, .family = target.family});
}

int Desktop::place(const WidgetTarget& target)
{
    std::vector<QRect> taken;
    int lastId = 0;
    for (const PlacedWidget& widget : m_placed) {
        taken.push_back(m_windows.at(widget.id)->geometry());
        lastId = std::max(lastId, widget.id);
    }
    const auto screens = Screens::all();
    Placement placement{.screen = {}, .corner = ScreenCorner::topRight, .inset = {}};
    if (!screens.empty()) {
        const QRect frame
            = Placing::freeFrame(WidgetCard::sizeOf(target.family), screens.front().area, taken);
        placement = Placing::placement(frame, {screens.front()}).value_or(placement);
    }
    m_placed.push_back({.id = lastId + 1, .target = target, .placement = placement});
    openWindow(m_placed.back());
    m_file.write(m_placed);
    return lastId + 1;
}

bool Desktop::remove(int widget)
{
    if (find(widget) == nullptr)
        return false;
    m_schedule.remove(widget);
    m_windows.erase(widget);
    std::erase_if(m_placed, [&](const PlacedWidget& placed) { return placed.id == widget; });
    m_file.write(m_placed);
    return true;
}

void Desktop::showGallery()
{
    if (!m_gallery) {
        m_gallery.reset(
            new Gallery{m_extension, m_fonts, [this](const WidgetTarget& target) { add(target); }});
        m_gallery->showWidgets(m_known);
        if (m_known.empty())
            learnWidgets();
    }
    m_gallery->show();
    m_gallery->raise();
    m_gallery->activateWindow();
}

void Desktop::openWindow(const PlacedWidget& widget)
{
    Window window{new WidgetWindow{widget.target.family, m_fonts, actionsOf(widget.id)}};
    window->move(Placing::frame(widget.placement, window->size(), Screens::all()).topLeft());
    window->show();
    m_windows[widget.id] = std::move(window);
    nameWindow(widget);
    m_schedule.add(widget.id, widget.target);
}

WidgetActions Desktop::actionsOf(int widget)
{
    return {
        .open = m_open,
        .snapped = [this, widget](const QRect& frame) { return snapped(widget, frame); },
        .dropped = [this, widget] { rememberFrame(widget); },
        .menu = [this, widget](const QPoint& place) { popUpMenu(widget, place); },
    };
}

void Desktop::nameWindow(const PlacedWidget& widget)
{
    if (const WidgetInfo* info = infoOf(widget.target.kind)) {
        m_windows.at(widget.id)->setNames(
            QString::fromStdString(info->displayName), QString::fromStdString(info->description));
    }
}

void Desktop::resize(int widget, ContainerFamily family)
{
    PlacedWidget* placed = find(widget);
    if (placed == nullptr || placed->target.family == family)
        return;
    placed->target.family = family;
    openWindow(*placed);
    m_file.write(m_placed);
}

void Desktop::rememberFrame(int widget)
{
    PlacedWidget* placed = find(widget);
    if (placed == nullptr)
        return;
    placed->placement
        = Placing::placement(m_windows.at(widget)->geometry(), Screens::all()).value_or(placed->placement);
    m_file.write(m_placed);
}

void Desktop::restoreFrames()
{
    for (const PlacedWidget& widget : m_placed) {
        WidgetWindow& window = *m_windows.at(widget.id);
        window.move(Placing::frame(widget.placement, window.size(), Screens::all()).topLeft());
    }
}

QRect Desktop::snapped(int widget, const QRect& frame) const
{
    const auto screen = Placing::screenOf(frame, Screens::all());
    if (!screen)
        return frame;
    std::vector<QRect> neighbours;
    for (const auto& [id, window] : m_windows) {
        if (id != widget)
            neighbours.push_back(window->geometry());
    }
    return Placing::snapped(frame, screen->area, neighbours);
}

void Desktop::popUpMenu(int widget, const QPoint& place)
{
    const PlacedWidget* placed = find(widget);
    if (placed == nullptr)
        return;
    const WidgetInfo* info = infoOf(placed->target.kind);
    const WidgetMenuActions actions{
        .resize = [this, widget](ContainerFamily family) { resize(widget, family); },
        .refresh = [this, widget] { m_schedule.refresh(widget); },
        .add = [this] { showGallery(); },
        .remove = [this, widget] { remove(widget); },
        .settings = [this] { m_open(URL::parse("skyvane://settings").value()); },
        .quit = [] { QCoreApplication::quit(); },
    };
    const auto families = info != nullptr ? info->families : std::vector{placed->target.family};
    makeWidgetMenu(*m_windows.at(widget), families, placed->target.family, actions)->popup(place);
}

PlacedWidget* Desktop::find(int widget)
{
    const auto place = std::find_if(
        m_placed.begin(), m_placed.end(), [&](const PlacedWidget& placed) { return placed.id == widget; });
    return place == m_placed.end() ? nullptr : &*place;
}

const WidgetInfo* Desktop::infoOf(const std::string& kind) const
{
    const auto place = std::find_if(m_known.begin(), m_known.end(),
        [&](const WidgetInfo& widget) { return widget.kind == kind || widget.shortName() == kind; });
    return place == m_known.end() ? nullptr : &*place;
}

} // namespace skyvane
