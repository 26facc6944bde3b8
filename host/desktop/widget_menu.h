#pragma once

#include "ui/layout/widget_container.h"

#include <QPoint>
#include <QString>

#include <functional>
#include <vector>

class QMenu;
class QWidget;

namespace skyvane {

struct WidgetMenuActions {
    std::function<void(WidgetFamily)> resize;
    std::function<void()> refresh;
    std::function<void()> add;
    std::function<void()> remove;
    std::function<void()> settings;
    std::function<void()> quit;
};

/// The family's name in the user's language.
QString familyTitle(WidgetFamily family);

/// The menu of one widget; it goes when it closes.
QMenu* makeWidgetMenu(QWidget& parent, const std::vector<WidgetFamily>& families, WidgetFamily current,
    const WidgetMenuActions& actions);

} // namespace skyvane
