#include "host/desktop/accessible_part.h"

#include "host/desktop/widget_window.h"

namespace skyvane {

bool AccessiblePart::isValid() const
{
    return m_index < m_window.parts().size();
}

bool AccessiblePart::isLink() const
{
    return isValid() && m_window.parts()[m_index].link;
}

QWindow* AccessiblePart::window() const
{
    return m_window.windowHandle();
}

QAccessibleInterface* AccessiblePart::parent() const
{
    return QAccessible::queryAccessibleInterface(&m_window);
}

QString AccessiblePart::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Name && isValid() ? QString::fromStdString(m_window.parts()[m_index].text)
                                                  : QString{};
}

QRect AccessiblePart::rect() const
{
    if (!isValid())
        return {};
    const Rect& frame = m_window.parts()[m_index].frame;
    const QRect inWindow = QRectF{frame.x, frame.y, frame.width, frame.height}.toAlignedRect();
    return {m_window.mapToGlobal(inWindow.topLeft()), inWindow.size()};
}

QAccessible::Role AccessiblePart::role() const
{
    return isLink() ? QAccessible::Link : QAccessible::StaticText;
}

QAccessible::State AccessiblePart::state() const
{
    QAccessible::State state;
    state.invalid = !isValid();
    state.invisible = !m_window.isVisible();
    state.readOnly = true;
    if (isLink()) {
        state.focusable = true;
        state.linked = true;
        state.focused = m_window.hasFocus() && m_window.focusedLink() == m_window.parts()[m_index].link;
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
        m_window.press(m_window.parts()[m_index].link);
}

} // namespace skyvane
