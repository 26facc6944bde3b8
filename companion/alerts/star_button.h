#pragma once

#include <QToolButton>

namespace skyvane {

/// The star beside an aircraft's name: on while it is on the watch list.
class StarButton : public QToolButton {
    Q_OBJECT
public:
    explicit StarButton(QWidget* parent = nullptr);

    void setOn(bool isOn);
};

} // namespace skyvane
