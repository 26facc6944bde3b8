#pragma once

#include <QAccessibleWidget>

#include <vector>

namespace skyvane {

class WidgetWindow;

/// A widget's window for a screen reader, with a child for each of its links and rows of text.
class AccessibleWidget : public QAccessibleWidget {
public:
    explicit AccessibleWidget(WidgetWindow& window);
    ~AccessibleWidget() override;
    AccessibleWidget(const AccessibleWidget&) = delete;
    AccessibleWidget& operator=(const AccessibleWidget&) = delete;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;

    /// The window shows something else now.
    void renew();
    /// Another link has the focus, or none.
    void tellFocus();

private:
    void forgetChildren();

    WidgetWindow& m_window;
    mutable std::vector<QAccessible::Id> m_children; ///< Made when first asked for.
};

/// Has every `WidgetWindow` answer screen readers so. May be called again.
void makeWidgetsAccessible();

/// The window's own, where a screen reader is listening; else null.
AccessibleWidget* accessibleOf(WidgetWindow& window);

} // namespace skyvane
