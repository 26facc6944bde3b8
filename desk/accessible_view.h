#pragma once

#include "desk/spoken_view.h"

#include <QAccessibleWidget>

#include <vector>

namespace skyvane {

/// A widget that shows a view, for a screen reader: it has a child for each of its links and rows of text.
class AccessibleView : public QAccessibleWidget {
public:
    /// `widget` and `view` are the same.
    AccessibleView(QWidget& widget, SpokenView& view);
    ~AccessibleView() override;
    AccessibleView(const AccessibleView&) = delete;
    AccessibleView& operator=(const AccessibleView&) = delete;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    QAccessible::Role role() const override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;

    /// To be called when the widget shows another view.
    void renew();
    /// To be called when another link has the focus, or none.
    void tellFocus();

private:
    void forgetChildren();

    SpokenView& m_view;
    mutable std::vector<QAccessible::Id> m_children; ///< Made when first asked for.
};

/// Makes this the accessible interface of every widget that is a `SpokenView`. May be called again.
void makeViewsAccessible();

/// The interface of this widget; null unless a screen reader is listening.
AccessibleView* accessibleOf(QWidget& widget);

} // namespace skyvane
