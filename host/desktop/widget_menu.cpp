#include "host/desktop/widget_menu.h"

#include "desk/text.h"

#include <QActionGroup>
#include <QMenu>

namespace skyvane {

QString familyTitle(WidgetFamily family)
{
    switch (family) {
    case WidgetFamily::small:
        return localizedText("Small");
    case WidgetFamily::medium:
        return localizedText("Medium");
    case WidgetFamily::large:
        break;
    }
    return localizedText("Large");
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
    menu->addAction(localizedText("&Refresh Now"), menu, actions.refresh);
    menu->addSeparator();
    menu->addAction(localizedText("&Add Widgets…"), menu, actions.add);
    menu->addAction(localizedText("Re&move"), menu, actions.remove);
    menu->addSeparator();
    menu->addAction(localizedText("&Settings…"), menu, actions.settings);
    menu->addAction(localizedText("&Quit"), menu, actions.quit);
    return menu;
}

} // namespace skyvane
