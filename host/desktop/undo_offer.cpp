#include "host/desktop/undo_offer.h"

#include "host/desktop/widget_windows.h"
#include "host/session/desktop_way.h"

#include <utility>

namespace skyvane {

void UndoOffer::make(const PlacedWidget& removed, const QString& name, const QRect& frame,
    const WidgetWindows& windows, const UndoCard::Actions& actions)
{
    m_removed = removed;
    m_card.reset(new UndoCard{name, frame.width(), windows.way(), actions, [this] { take(); }});
    if (!windows.isComposited())
        m_card->cutCorners();
    windows.way().move(*m_card, frame.topLeft());
    windows.way().show(*m_card);
}

std::optional<PlacedWidget> UndoOffer::take()
{
    m_card.reset();
    return std::exchange(m_removed, std::nullopt);
}

} // namespace skyvane
