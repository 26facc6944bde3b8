#include "host/desktop/widget_windows.h"

#include "host/desktop/screens.h"
#include "host/session/desktop_way.h"
#include "paint/widget_card.h"

#include <QCursor>

#include <iterator>
#include <utility>

namespace skyvane {

WidgetWindows::WidgetWindows(const FontMeasurer& fonts, std::unique_ptr<DesktopWay> way)
    : m_fonts(fonts), m_way(std::move(way)), m_screens(Screens::all(*m_way))
{
}

WidgetWindows::~WidgetWindows() = default;

void WidgetWindows::follow(std::unique_ptr<DesktopWay> way)
{
    m_way = std::move(way);
    m_screens = Screens::all(*m_way);
}

void WidgetWindows::open(const PlacedWidget& widget, WidgetActions actions)
{
    WindowPointer<WidgetWindow> window{
        new WidgetWindow{widget.target.family, m_fonts, *m_way, std::move(actions)}};
    window->setShaped(!m_isComposited);
    window->setMovable(m_areMovable);
    m_way->move(*window, Placing::frame(widget.placement, window->size(), m_screens).topLeft());
    m_way->show(*window);
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

void WidgetWindows::setMovable(bool areMovable)
{
    m_areMovable = areMovable;
    for (const auto& [id, window] : m_windows)
        window->setMovable(areMovable);
}

std::optional<ScreenArea> WidgetWindows::primaryScreen() const
{
    return m_screens.empty() ? std::nullopt : std::optional{m_screens.front()};
}

std::optional<ScreenArea> WidgetWindows::screenInUse(const QWidget* window) const
{
    if (!m_way->arePlacesKnown())
        return primaryScreen();
    return Placing::screenOf(
        window != nullptr ? window->frameGeometry() : QRect{QCursor::pos(), QSize{1, 1}}, m_screens);
}

void WidgetWindows::restore(const std::vector<PlacedWidget>& widgets)
{
    m_screens = Screens::all(*m_way);
    std::vector<Placing::Remembered> remembered;
    remembered.reserve(widgets.size());
    for (const PlacedWidget& widget : widgets)
        remembered.push_back(
            {.placement = widget.placement, .size = WidgetCard::sizeOf(widget.target.family)});
    const auto frames = Placing::frames(remembered, m_screens);
    for (std::size_t index = 0; index < widgets.size(); ++index) {
        if (WidgetWindow* window = find(widgets[index].id))
            m_way->move(*window, frames[index].topLeft());
    }
}

QPoint WidgetWindows::menuPlace(const WidgetWindow& window, const QPoint& place, QSize menu) const
{
    if (m_way->arePlacesKnown())
        return place; // The toolkit knows better, and opens it to the other side.
    const QRect frame{window.pos() + place, menu};
    const auto screen = Placing::screenOf(window.geometry(), m_screens);
    return screen ? Placing::inside(frame, screen->area).topLeft() - window.pos() : place;
}

QRect WidgetWindows::snapped(const QRect& frame, std::optional<int> own) const
{
    const auto screen = Placing::screenOf(frame, m_screens);
    return screen ? Placing::snapped(frame, screen->area, framesBut(own)) : frame;
}

QRect WidgetWindows::freeFrame(WidgetFamily family, const std::optional<ScreenArea>& screen) const
{
    const QSize size = WidgetCard::sizeOf(family);
    return screen ? Placing::freeFrame(size, screen->area, framesBut(std::nullopt)) : QRect{{}, size};
}

bool WidgetWindows::giveKeyboard(std::optional<int> from, bool isNext)
{
    const auto own = from ? m_windows.find(*from) : m_windows.end();
    if (m_windows.empty() || (own != m_windows.end() && m_windows.size() == 1))
        return false;
    const auto first = m_windows.begin();
    const auto last = std::prev(m_windows.end());
    if (isNext)
        m_way->giveKeyboard(*(own == m_windows.end() || own == last ? first : std::next(own))->second);
    else
        m_way->giveKeyboard(*(own == first ? last : std::prev(own))->second);
    return true;
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
