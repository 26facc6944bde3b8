#include "host/desktop/widget_menu.h"

#include "platform/text/localized.h"

#include <QActionGroup>
#include <QMenu>

namespace skyvane {

QString familyTitle(WidgetFamily family)
{
    switch (family) {
    case WidgetFamily::small:
        return QString::fromStdString(localized("Small"));
    case WidgetFamily::medium:
        return QString::fromStdString(localized("Medium"));
    case WidgetFamily::large:
        break;
    }
    return QString::fromStdString(localized("Large"));
}

QMenu* makeWidgetMenu(QWidget& parent, const std::vector<WidgetFamily>& families, WidgetFamily current,
    const WidgetMenuActions& actions)
{
    auto* menu = new QMenu{&parent};
    menu->setAttribute(Qt::WA_DeleteOnClose);
    auto* sizes = new QActionGroup{menu};
    for (const WidgetFamily family : families) {
        QAction* size = menu->addAction(familyTitle(family), menu, [=] { actions.resize(family); });
        size->setCheckable(true);
        size->setChecked(family == current);
        sizes->addAction(size);
    }
    menu->addSeparator();
    menu->addAction(QString::fromStdString(localized("&Refresh Now")), menu, actions.refresh);
    menu->addSeparator();
    menu->addAction(QString::fromStdString(localized("&Add Widgets…")), menu, actions.add);
    menu->addAction(QString::fromStdString(localized("Re&move")), menu, actions.remove);
    menu->addSeparator();
    menu->addAction(QString::fromStdString(localized("&Settings…")), menu, actions.settings);
    menu->addAction(QString::fromStdString(localized("&Quit")), menu, actions.quit);
    return menu;
}

} // namespace skyvane
