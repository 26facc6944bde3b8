#include "companion/sky/cell_delegate.h"

#include <QApplication>
#include <QPainter>

namespace skyvane {

void CellDelegate::paintBackground(
    QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem empty = option;
    initStyleOption(&empty, index);
    empty.text.clear();
    empty.state.setFlag(QStyle::State_HasFocus, false); // The whole row is chosen, not this cell.
    const QStyle* style = option.widget != nullptr ? option.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &empty, &painter, option.widget);
}

void CellDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    paintBackground(*painter, option, index);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QRect frame = option.rect.adjusted(margin, 0, -margin, 0);
    painter->save();
    painter->setFont(option.font);
    painter->setPen(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(frame, static_cast<int>(index.data(Qt::TextAlignmentRole).value<Qt::Alignment>()),
        option.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, frame.width()));
    painter->restore();
}

} // namespace skyvane
