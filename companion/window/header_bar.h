#pragma once

#include "companion/look/heading.h"

#include <QWidget>

#include <vector>

class QAction;

namespace skyvane {

class ElidedLabel;

/// The top of the window: the way back, the page's heading, refresh and the menu.
class HeaderBar : public QWidget {
    Q_OBJECT
public:
    struct Actions {
        QAction* back;
        QAction* refresh;
        std::vector<QAction*> menu;
    };

    explicit HeaderBar(const Actions& actions, QWidget* parent = nullptr);

    void showHeading(const Heading& heading);

private:
    ElidedLabel* m_title;
    ElidedLabel* m_details;
};

} // namespace skyvane
