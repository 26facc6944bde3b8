#pragma once

#include <QAccessibleInterface>

#include <cstddef>

namespace skyvane {

class WidgetWindow;

/// One link or row of a widget's window for a screen reader.
class AccessiblePart : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessiblePart(WidgetWindow& window, std::size_t index) : m_window(window), m_index(index) { }

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

    WidgetWindow& m_window;
    std::size_t m_index;
};

} // namespace skyvane
