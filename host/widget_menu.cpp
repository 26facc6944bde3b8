#include "host/widget_menu.h"

#include <QActionGroup>
#include <QMenu>

namespace skyvane {

namespace {

QString title(ContainerFamily family)
{
    switch (family) {
    case ContainerFamily::small:
        return QStringLiteral("Small");
    case ContainerFamily::medium:
        return QStringLiteral("Medium");
    case ContainerFamily::large:
        break;
    }
    return QStringLiteral("Large");
}

} // namespace

QMenu* makeWidgetMenu(QWidget& parent, const std::vector<ContainerFamily>& families, ContainerFamily current,
    const WidgetMenuActions& actions)
{
    auto* menu = new QMenu{&parent};
    menu->setAttribute(Qt::WA_DeleteOnClose);
    auto* sizes = new QActionGroup{menu};
    for (const ContainerFamily family : families) {
        QAction* size = menu->addAction(title(family), menu, [=] { actions.resize(family); });
        size->setCheckable(true);
        size->setChecked(family == current);
        sizes->addAction(size);
    }
    menu->addSeparator();
    menu->addAction(QStringLiteral("&Refresh Now"), menu, actions.refresh);
    menu->addSeparator();
    menu->addAction(QStringLiteral("&Add Widgets…"), menu, actions.add);
    menu->addAction(QStringLiteral("Re&move"), menu, actions.remove);
    menu->addSeparator();
    menu->addAction(QStringLiteral("&Settings…"), menu, actions.settings);
    menu->addAction(QStringLiteral("&Quit"), menu, actions.quit);
    return menu;
}

} // namespace skyvane
