#include "host/desktop/desktop.h"

#include "desk/text.h"
#include "host/desktop/gallery.h"
#include "host/desktop/widget_menu.h"
#include "host/placing/screens.h"
#include "host/session/desktop_hints.h"

#include <QApplication>
#include <QMenu>

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

} // namespace

Desktop::Desktop(ExtensionProcess& extension, const DesktopSetup& setup)
    : m_open(setup.open)
    , m_settings(setup.settings)
    , m_extension(extension)
    , m_offered(extension)
    , m_placed(setup.hostFile)
    , m_windows(m_fonts)
    , m_schedule(m_extension,
          [this](int widget, const ShownEntry& content) {
              if (WidgetWindow* window = m_windows.find(widget))
                  window->showContent(content);
          })
    , m_configuration(setup.configuration, [this] { m_schedule.refreshAll(); })
    , m_sleep(QDBusConnection::systemBus(), [this] { m_schedule.lookAtClock(); })
{
    Screens::onChange(m_context, [this] { m_windows.restore(m_placed.all()); });
    start(setup);
}

Desktop::~Desktop()
{
    m_windows.clear();
    m_gallery.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Desktop::start(const DesktopSetup& setup)
{
    if (m_placed.isFirstStart()) {
        for (const WidgetTarget& target : firstWidgets())
            place(target, m_windows.freeFrame(target.family, Screens::primary()));
        std::error_code ignored;
        if (!std::filesystem::exists(setup.configuration, ignored))
            setup.welcome();
    } else {
        for (const PlacedWidget& widget : m_placed.all())
            show(widget);
    }
    if (m_placed.all().empty())
        showGallery(); // Nothing else would lead to it.
    else
        learnWidgets();
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
    return place(
        *offered, frame ? m_windows.snapped(*frame) : m_windows.freeFrame(target.family, screenInUse()));
}

/// The gallery's, else the pointer's.
std::optional<ScreenArea> Desktop::screenInUse() const
{
    if (!arePlacesKnown())
        return Screens::primary();
    const bool isGallery = m_gallery && m_gallery->isVisible();
    return Placing::screenOf(
        isGallery ? m_gallery->frameGeometry() : QRect{QCursor::pos(), QSize{1, 1}}, Screens::all());
}

int Desktop::place(const WidgetTarget& target, const QRect& frame)
{
    const Placement nowhere{.screen = {}, .corner = ScreenCorner::topRight, .inset = {}};
    const PlacedWidget widget
        = m_placed.add(target, Placing::placement(frame, Screens::all()).value_or(nowhere));
    show(widget);
    return widget.id;
}

bool Desktop::remove(int widget)
{
    m_schedule.remove(widget);
    m_windows.close(widget);
    return m_placed.remove(widget);
}

void Desktop::showGallery()
{
    if (!m_gallery) {
        m_gallery.reset(new Gallery{m_extension, m_fonts,
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
        .menu = [this, widget](const QPoint& place) { popUpMenu(widget, place); },
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
    if (const auto placement = Placing::placement(window->geometry(), Screens::all()))
        m_placed.move(widget, *placement);
}

void Desktop::popUpMenu(int widget, const QPoint& place)
{
    const PlacedWidget* placed = m_placed.find(widget);
    WidgetWindow* window = m_windows.find(widget);
    if (placed == nullptr || window == nullptr)
        return;
    const WidgetInfo* info = m_offered.find(placed->target.kind);
    const WidgetMenuActions actions{
        .resize = [this, widget](WidgetFamily family) { resize(widget, family); },
        .refresh = [this, widget] { m_schedule.refresh(widget); },
        .add = [this] { showGallery(); },
        .remove = [this, widget] { remove(widget); },
        .settings = m_settings,
        .quit = [] { QCoreApplication::quit(); },
    };
    const auto families = info != nullptr ? info->families : std::vector{placed->target.family};
    makeWidgetMenu(*window, families, placed->target.family, actions)->popup(place);
}

} // namespace skyvane
