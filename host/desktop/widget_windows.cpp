#include "host/desktop/widget_windows.h"

#include "host/placing/screens.h"
#include "host/session/desktop_hints.h"
#include "paint/widget_card.h"

#include <utility>

namespace skyvane {

namespace {

void moveTo(WidgetWindow& window, const Placement& placement)
{
    moveOnDesktop(window, Placing::frame(placement, window.size(), Screens::all()).topLeft());
}

} // namespace

void WidgetWindows::open(const PlacedWidget& widget, WidgetActions actions)
{
    WindowPointer<WidgetWindow> window{new WidgetWindow{widget.target.family, m_fonts, std::move(actions)}};
    window->setShaped(!m_isComposited);
    moveTo(*window, widget.placement);
    showOnDesktop(*window);
    m_windows[widget.id] = std::move(window);
}

void WidgetWindows::close(int widget)
{
    m_windows.erase(widget);
}

WidgetWindow* WidgetWindows::find(int widget) const
{
    const auto found = m_windows.find(widget);
    return found == m_windows.end() ? nullptr : found->second.get();
}

void WidgetWindows::restore(const std::vector<PlacedWidget>& widgets)
{
    for (const PlacedWidget& widget : widgets) {
        if (WidgetWindow* window = find(widget.id))
            moveTo(*window, widget.placement);
    }
}

QRect WidgetWindows::snapped(const QRect& frame, std::optional<int> own) const
{
    const auto screen = Placing::screenOf(frame, Screens::all());
    return screen ? Placing::snapped(frame, screen->area, framesBut(own)) : frame;
}

QRect WidgetWindows::freeFrame(WidgetFamily family, const std::optional<ScreenArea>& screen) const
{
    const QSize size = WidgetCard::sizeOf(family);
    return screen ? Placing::freeFrame(size, screen->area, framesBut(std::nullopt)) : QRect{{}, size};
}

std::vector<QRect> WidgetWindows::framesBut(std::optional<int> widget) const
{
    std::vector<QRect> frames;
    for (const auto& [id, window] : m_windows) {
        if (id != widget)
            frames.push_back(window->geometry());
    }
    return frames;
}

void WidgetWindows::shape()
{
    m_isComposited = m_compositing.isActive();
    for (const auto& [id, window] : m_windows)
        window->setShaped(!m_isComposited);
}

} // namespace skyvane
