#include "companion/look/link_label.h"

#include <QEvent>

namespace skyvane {

LinkLabel::LinkLabel(const QString& richText, QWidget* parent) : QLabel(richText, parent)
{
    setTextFormat(Qt::RichText);
    setOpenExternalLinks(true);
}

void LinkLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() != QEvent::PaletteChange)
        return;
    const QString richText = text();
    clear(); // The same text once more would change nothing.
    setText(richText);
}

} // namespace skyvane
