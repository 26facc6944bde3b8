#pragma once

#include "desk/spoken_view.h"

#include <QAccessibleInterface>

#include <cstddef>

class QWidget;

namespace skyvane {

/// One link or row of text of a view for a screen reader.
class AccessiblePart : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    /// `widget` and `view` are the same.
    AccessiblePart(QWidget& widget, SpokenView& view, std::size_t index)
        : m_widget(widget), m_view(view), m_index(index)
    {
    }

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override { }
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    bool isLink() const;

    QWidget& m_widget;
    SpokenView& m_view;
    std::size_t m_index;
};

} // namespace skyvane
