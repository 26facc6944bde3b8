#pragma once

#include "companion/sky/cell_delegate.h"

namespace skyvane {

/// Paints the star of a row: filled on the watch list, else an outline in the quiet colour.
class StarDelegate : public CellDelegate {
public:
    static constexpr int size = 16; ///< Pixels.

    using CellDelegate::CellDelegate;

    void paint(
        QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace skyvane
