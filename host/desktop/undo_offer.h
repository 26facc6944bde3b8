#pragma once

#include "host/desktop/undo_card.h"
#include "host/desktop/window_pointer.h"

#include <optional>

namespace skyvane {

class WidgetWindows;

/// The widget that was removed last, for as long as the card in its place offers it back.
class UndoOffer {
public:
    /// `name`: the widget's, for people. `frame`: where it stood.
    void make(const PlacedWidget& removed, const QString& name, const QRect& frame,
        const WidgetWindows& windows, const UndoCard::Actions& actions);

    /// Ends the offer and returns the widget; absent where there is none on offer.
    std::optional<PlacedWidget> take();

private:
    std::optional<PlacedWidget> m_removed;
    WindowPointer<UndoCard> m_card;
};

} // namespace skyvane
