#include "desk/accessible_part.h"

#include "paint/to_qt.h"

#include <QWidget>

namespace skyvane {

bool AccessiblePart::isValid() const
{
    return m_index < m_view.parts().size();
}

bool AccessiblePart::isLink() const
{
    return isValid() && m_view.parts()[m_index].link;
}

QWindow* AccessiblePart::window() const
{
    return m_widget.window()->windowHandle();
}

QAccessibleInterface* AccessiblePart::parent() const
{
    return QAccessible::queryAccessibleInterface(&m_widget);
}

QString AccessiblePart::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Name && isValid() ? toQString(m_view.parts()[m_index].text) : QString{};
}

QRect AccessiblePart::rect() const
{
    if (!isValid())
        return {};
    const Rect& frame = m_view.parts()[m_index].frame;
    const QRect inWidget = QRectF{frame.x, frame.y, frame.width, frame.height}.toAlignedRect();
    return {m_widget.mapToGlobal(inWidget.topLeft()), inWidget.size()};
}

QAccessible::Role AccessiblePart::role() const
{
    return isLink() ? QAccessible::Link : QAccessible::StaticText;
}

QAccessible::State AccessiblePart::state() const
{
    QAccessible::State state;
    state.invalid = !isValid();
    state.invisible = !m_widget.isVisible();
    state.readOnly = true;
    if (isLink()) {
        state.focusable = true;
        state.linked = true;
        state.focused = m_widget.hasFocus() && m_view.focusedLink() == m_view.parts()[m_index].link;
    }
    return state;
}

void* AccessiblePart::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface && isLink() ? static_cast<QAccessibleActionInterface*>(this)
                                                            : nullptr;
}

QStringList AccessiblePart::actionNames() const
{
    return isLink() ? QStringList{pressAction()} : QStringList{};
}

void AccessiblePart::doAction(const QString& name)
{
    if (name == pressAction() && isLink())
        m_view.press(m_view.parts()[m_index].link);
}

} // namespace skyvane
