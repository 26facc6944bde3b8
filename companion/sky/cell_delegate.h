#pragma once

#include <QStyledItemDelegate>

namespace skyvane {

/// Paints a cell's text with room at both ends.
class CellDelegate : public QStyledItemDelegate {
public:
    static constexpr int margin = 10; ///< Pixels at each end.

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(
        QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    /// The row's background and marks, without any text.
    void paintBackground(
        QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
};

} // namespace skyvane
