#include "host/desktop/desktop.h"

#include "host/desktop/gallery.h"
#include "host/desktop/widget_menu.h"
#include "host/placing/screens.h"
#include "host/session/desktop_hints.h"
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
        {.kind = "org.skyvane.widgets.nearest", .family = WidgetFamily::small},
        {.kind = "org.skyvane.widgets.radar", .family = WidgetFamily::medium},
        {.kind = "org.skyvane.widgets.skyboard", .family = WidgetFamily::large},
    }};
    return targets;
}

bool offers(const WidgetInfo& widget, WidgetFamily family)
{
    return std::find(widget.families.begin(), widget.families.end(), family) != widget.families.end();
}

} // namespace

void Desktop::DeleteLater::operator()(QWidget* window) const
{
    window->hide();
    window->deleteLater();
}

Desktop::Desktop(ExtensionProcess& extension, const DesktopSetup& setup)
    : m_open(setup.open)
    , m_settings(setup.settings)
    , m_extension(extension)
    , m_file(setup.hostFile)
    , m_schedule(m_extension,
          [this](int widget, const ShownEntry& content) {
              if (const auto window = m_windows.find(widget); window != m_windows.end())
                  window->second->showContent(content);
          })
    , m_configuration(setup.configuration, [this] { m_schedule.refreshAll(); })
    , m_sleep(QDBusConnection::systemBus(), [this] { m_schedule.lookAtClock(); })
    , m_compositing([this] { shapeWindows(); })
{
    Screens::onChange(m_context, [this] { restoreFrames(); });
    if (auto remembered = m_file.read()) {
        m_placed = std::move(*remembered);
        for (const PlacedWidget& widget : m_placed)
            openWindow(widget);
    } else {
        for (const WidgetTarget& target : firstWidgets())
            place(target, freeFrame(target.family, Screens::primary()));
        std::error_code ignored;
        if (!std::filesystem::exists(setup.configuration, ignored))
            setup.welcome();
    }
    if (m_placed.empty())
        showGallery(); // Nothing else would lead to it.
    else
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
    m_extension.ask(Protocol::ListCall{}, [this](const std::optional<Protocol::WidgetList>& list) {
        if (!list)
            return;
        m_known = list->widgets;
        for (const PlacedWidget& widget : m_placed)
            nameWindow(widget);
        if (m_gallery)
            m_gallery->showWidgets(m_known);
    });
}

std::optional<int> Desktop::add(const WidgetTarget& target, const std::optional<QRect>& frame)
{
    const WidgetInfo* info = infoOf(target.kind);
    if (info == nullptr || !offers(*info, target.family))
        return std::nullopt;
    const int id = nextId();
    const QRect place = frame ? snapped(id, *frame) : freeFrame(target.family, screenInUse());
    return this->place({.kind = info->kind, .family = target.family}, place);
}

int Desktop::nextId() const
{
    int last = 0;
    for (const PlacedWidget& widget : m_placed)
        last = std::max(last, widget.id);
    return last + 1;
}

int Desktop::place(const WidgetTarget& target, const QRect& frame)
{
    const Placement nowhere{.screen = {}, .corner = ScreenCorner::topRight, .inset = {}};
    m_placed.push_back({
        .id = nextId(),
        .target = target,
        .placement = Placing::placement(frame, Screens::all()).value_or(nowhere),
    });
    openWindow(m_placed.back());
    m_file.write(m_placed);
    return m_placed.back().id;
}

QRect Desktop::freeFrame(WidgetFamily family, const std::optional<ScreenArea>& screen) const
{
    const QSize size = WidgetCard::sizeOf(family);
    return screen ? Placing::freeFrame(size, screen->area, framesBut(nextId())) : QRect{{}, size};
}

/// The gallery's, else the pointer's.
std::optional<ScreenArea> Desktop::screenInUse() const
{
    if (m_gallery && m_gallery->isVisible() && arePlacesKnown())
        return Placing::screenOf(m_gallery->frameGeometry(), Screens::all());
    return arePlacesKnown() ? Placing::screenOf({QCursor::pos(), QSize{1, 1}}, Screens::all())
                            : Screens::primary();
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
        m_gallery.reset(new Gallery{m_extension, m_fonts,
            [this](const WidgetTarget& target, const std::optional<QRect>& frame) { add(target, frame); }});
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
    window->setShaped(!m_isComposited);
    moveOnDesktop(*window, Placing::frame(widget.placement, window->size(), Screens::all()).topLeft());
    showOnDesktop(*window);
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

void Desktop::resize(int widget, WidgetFamily family)
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
        moveOnDesktop(window, Placing::frame(widget.placement, window.size(), Screens::all()).topLeft());
    }
}

void Desktop::shapeWindows()
{
    m_isComposited = m_compositing.isActive();
    for (const auto& [id, window] : m_windows)
        window->setShaped(!m_isComposited);
}

QRect Desktop::snapped(int widget, const QRect& frame) const
{
    const auto screen = Placing::screenOf(frame, Screens::all());
    if (!screen)
        return frame;
    return Placing::snapped(frame, screen->area, framesBut(widget));
}

std::vector<QRect> Desktop::framesBut(int widget) const
{
    std::vector<QRect> frames;
    for (const auto& [id, window] : m_windows) {
        if (id != widget)
            frames.push_back(window->geometry());
    }
    return frames;
}

void Desktop::popUpMenu(int widget, const QPoint& place)
{
    const PlacedWidget* placed = find(widget);
    if (placed == nullptr)
        return;
    const WidgetInfo* info = infoOf(placed->target.kind);
    const WidgetMenuActions actions{
        .resize = [this, widget](WidgetFamily family) { resize(widget, family); },
        .refresh = [this, widget] { m_schedule.refresh(widget); },
        .add = [this] { showGallery(); },
        .remove = [this, widget] { remove(widget); },
        .settings = m_settings,
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
