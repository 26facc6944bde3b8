#include "host/desktop/accessible_widget.h"

#include "host/desktop/accessible_part.h"
#include "host/desktop/widget_window.h"

#include <algorithm>

namespace skyvane {

namespace {

void tell(QAccessibleInterface* about, QAccessible::Event what)
{
    QAccessibleEvent event{about, what};
    QAccessible::updateAccessibility(&event);
}

QAccessibleInterface* makeAccessible(const QString&, QObject* object)
{
    auto* window = dynamic_cast<WidgetWindow*>(object);
    return window != nullptr ? new AccessibleWidget{*window} : nullptr;
}

} // namespace

AccessibleWidget::AccessibleWidget(WidgetWindow& window)
    : QAccessibleWidget(&window, QAccessible::Window), m_window(window)
{
}

AccessibleWidget::~AccessibleWidget()
{
    for (const QAccessible::Id child : m_children)
        QAccessible::deleteAccessibleInterface(child);
}

int AccessibleWidget::childCount() const
{
    return static_cast<int>(m_window.parts().size());
}

QAccessibleInterface* AccessibleWidget::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    while (m_children.size() < m_window.parts().size())
        m_children.push_back(
            QAccessible::registerAccessibleInterface(new AccessiblePart{m_window, m_children.size()}));
    return QAccessible::accessibleInterface(m_children[static_cast<std::size_t>(index)]);
}

int AccessibleWidget::indexOfChild(const QAccessibleInterface* child) const
{
    const auto place = std::find_if(m_children.begin(), m_children.end(),
        [&](QAccessible::Id id) { return QAccessible::accessibleInterface(id) == child; });
    return place == m_children.end() ? -1 : static_cast<int>(place - m_children.begin());
}

QAccessibleInterface* AccessibleWidget::childAt(int x, int y) const
{
    for (int index = 0; index < childCount(); ++index) {
        if (child(index)->rect().contains(x, y))
            return child(index);
    }
    return nullptr;
}

QAccessibleInterface* AccessibleWidget::focusChild() const
{
    for (int index = 0; index < childCount(); ++index) {
        if (child(index)->state().focused)
            return child(index);
    }
    return nullptr;
}

QStringList AccessibleWidget::actionNames() const
{
    return QStringList{pressAction()} + QAccessibleWidget::actionNames();
}

void AccessibleWidget::doAction(const QString& name)
{
    if (name == pressAction())
        m_window.press(std::nullopt);
    else
        QAccessibleWidget::doAction(name);
}

void AccessibleWidget::renew()
{
    if (m_children.size() == m_window.parts().size()) {
        for (const QAccessible::Id child : m_children)
            tell(QAccessible::accessibleInterface(child), QAccessible::NameChanged);
        return;
    }
    forgetChildren();
    for (int index = 0; index < childCount(); ++index)
        tell(child(index), QAccessible::ObjectCreated);
}

void AccessibleWidget::forgetChildren()
{
    for (const QAccessible::Id child : m_children) {
        tell(QAccessible::accessibleInterface(child), QAccessible::ObjectDestroyed);
        QAccessible::deleteAccessibleInterface(child);
    }
    m_children.clear();
}

void AccessibleWidget::tellFocus()
{
    QAccessibleInterface* link = focusChild();
    tell(link != nullptr ? link : this, QAccessible::Focus);
}

void makeWidgetsAccessible()
{
    QAccessible::installFactory(makeAccessible);
}

AccessibleWidget* accessibleOf(WidgetWindow& window)
{
    return QAccessible::isActive()
        ? dynamic_cast<AccessibleWidget*>(QAccessible::queryAccessibleInterface(&window))
        : nullptr;
}

} // namespace skyvane
