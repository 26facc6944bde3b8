#include "desk/accessible_view.h"

#include "desk/accessible_part.h"

#include <QWidget>

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
    auto* view = dynamic_cast<SpokenView*>(object);
    auto* widget = qobject_cast<QWidget*>(object);
    return view != nullptr && widget != nullptr ? new AccessibleView{*widget, *view} : nullptr;
}

} // namespace

AccessibleView::AccessibleView(QWidget& widget, SpokenView& view) : QAccessibleWidget(&widget), m_view(view)
{
}

AccessibleView::~AccessibleView()
{
    for (const QAccessible::Id child : m_children)
        QAccessible::deleteAccessibleInterface(child);
}

int AccessibleView::childCount() const
{
    return static_cast<int>(m_view.parts().size());
}

QAccessibleInterface* AccessibleView::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    while (m_children.size() < m_view.parts().size())
        m_children.push_back(QAccessible::registerAccessibleInterface(
            new AccessiblePart{*widget(), m_view, m_children.size()}));
    return QAccessible::accessibleInterface(m_children[static_cast<std::size_t>(index)]);
}

int AccessibleView::indexOfChild(const QAccessibleInterface* child) const
{
    const auto found = std::find_if(m_children.begin(), m_children.end(),
        [&](QAccessible::Id id) { return QAccessible::accessibleInterface(id) == child; });
    return found == m_children.end() ? -1 : static_cast<int>(found - m_children.begin());
}

QAccessibleInterface* AccessibleView::childAt(int x, int y) const
{
    for (int index = 0; index < childCount(); ++index) {
        if (child(index)->rect().contains(x, y))
            return child(index);
    }
    return nullptr;
}

QAccessibleInterface* AccessibleView::focusChild() const
{
    for (int index = 0; index < childCount(); ++index) {
        if (child(index)->state().focused)
            return child(index);
    }
    return nullptr;
}

QAccessible::Role AccessibleView::role() const
{
    return widget()->isWindow() ? QAccessible::Window : QAccessible::Client;
}

QStringList AccessibleView::actionNames() const
{
    const QStringList actions = QAccessibleWidget::actionNames();
    return m_view.isPressable() ? QStringList{pressAction()} + actions : actions;
}

void AccessibleView::doAction(const QString& name)
{
    if (name == pressAction())
        m_view.press(std::nullopt);
    else
        QAccessibleWidget::doAction(name);
}

void AccessibleView::renew()
{
    if (m_children.size() == m_view.parts().size()) {
        for (const QAccessible::Id child : m_children)
            tell(QAccessible::accessibleInterface(child), QAccessible::NameChanged);
        return;
    }
    forgetChildren();
    for (int index = 0; index < childCount(); ++index)
        tell(child(index), QAccessible::ObjectCreated);
}

void AccessibleView::forgetChildren()
{
    for (const QAccessible::Id child : m_children) {
        tell(QAccessible::accessibleInterface(child), QAccessible::ObjectDestroyed);
        QAccessible::deleteAccessibleInterface(child);
    }
    m_children.clear();
}

void AccessibleView::tellFocus()
{
    QAccessibleInterface* link = focusChild();
    tell(link != nullptr ? link : this, QAccessible::Focus);
}

void makeViewsAccessible()
{
    QAccessible::installFactory(makeAccessible);
}

AccessibleView* accessibleOf(QWidget& widget)
{
    return QAccessible::isActive()
        ? dynamic_cast<AccessibleView*>(QAccessible::queryAccessibleInterface(&widget))
        : nullptr;
}

} // namespace skyvane
