#pragma once

#include <QDialog>

namespace skyvane {

/// What the program is, and whose data it shows.
class AboutDialog : public QDialog {
    Q_OBJECT
public:
    explicit AboutDialog(QWidget* parent = nullptr);
};

} // namespace skyvane
