#pragma once

#include <QDialog>
#include <QList>

class QAction;

namespace skyvane {

/// Every key that does something, and what it does.
class ShortcutsDialog : public QDialog {
    Q_OBJECT
public:
    /// `actions`: of the window; those without a shortcut are left out.
    explicit ShortcutsDialog(const QList<QAction*>& actions, QWidget* parent = nullptr);
};

} // namespace skyvane
