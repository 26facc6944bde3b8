#pragma once

#include "host/placing/placing.h"
#include "ui/layout/widget_container.h"

#include <QPoint>
#include <QString>

#include <functional>
#include <string>
#include <vector>

class QMenu;
class QWidget;

namespace skyvane {

/// What a widget's menu offers, and what it ticks.
struct WidgetMenuChoices {
    std::vector<WidgetFamily> families;
    WidgetFamily family;
    std::vector<ScreenArea> screens; ///< Offered where there are several.
    std::string screen;
    bool isLocked;
};

struct WidgetMenuActions {
    std::function<void(WidgetFamily)> resize;
    std::function<void(const std::string& screen)> moveTo;
    std::function<void(bool isLocked)> lock;
    std::function<void()> refresh;
    std::function<void()> add;
    std::function<void()> remove;
    std::function<void()> settings;
    std::function<void()> quit;
};

/// The family's name in the user's language.
QString familyTitle(WidgetFamily family);

/// The menu of one widget; it goes when it closes.
QMenu* makeWidgetMenu(QWidget& parent, const WidgetMenuChoices& choices, const WidgetMenuActions& actions);

} // namespace skyvane
