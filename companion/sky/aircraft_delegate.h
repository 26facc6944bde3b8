#pragma once

#include "companion/sky/cell_delegate.h"

namespace skyvane {

/// Paints an aircraft's name between its heading glyph and its badge, in the colour that it has on the scope
/// as far as it can be read.
class AircraftDelegate : public CellDelegate {
public:
    using CellDelegate::CellDelegate;

    /// Of all that is painted for a name and a badge of these widths.
    static int width(int name, int badge);

    void paint(
        QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace skyvane
