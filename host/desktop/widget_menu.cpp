#include "host/desktop/widget_menu.h"

#include "desk/text.h"

#include <QActionGroup>
#include <QMenu>

namespace skyvane {

namespace {

/// One of several of which one is ticked.
void addChoice(QActionGroup& group, QMenu& menu, const QString& title, bool isTicked,
    const std::function<void()>& choose)
{
    QAction* action = menu.addAction(title, &menu, choose);
    action->setCheckable(true);
    action->setChecked(isTicked);
    group.addAction(action);
}

void addSizes(QMenu& menu, const WidgetMenuChoices& choices, const std::function<void(WidgetFamily)>& resize)
{
    auto* group = new QActionGroup{&menu};
    for (const WidgetFamily family : choices.families)
        addChoice(*group, menu, familyTitle(family), family == choices.family, [=] { resize(family); });
}

void addScreens(QMenu& menu, const WidgetMenuChoices& choices,
    const std::function<void(const std::string& screen)>& moveTo)
{
    auto* group = new QActionGroup{&menu};
    for (const ScreenArea& screen : choices.screens)
        addChoice(*group, menu, toQString(screen.name), screen.name == choices.screen,
            [=] { moveTo(screen.name); });
}

} // namespace

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

QMenu* makeWidgetMenu(QWidget& parent, const WidgetMenuChoices& choices, const WidgetMenuActions& actions)
{
    auto* menu = new QMenu{&parent};
    menu->setAttribute(Qt::WA_DeleteOnClose);
    addSizes(*menu, choices, actions.resize);
    menu->addSeparator();
    menu->addAction(localizedText("&Refresh Now"), menu, actions.refresh);
    menu->addSeparator();
    QAction* lock = menu->addAction(localizedText("&Lock Positions"));
    lock->setCheckable(true);
    lock->setChecked(choices.isLocked);
    QObject::connect(lock, &QAction::triggered, menu, actions.lock);
    if (choices.screens.size() > 1)
        addScreens(*menu->addMenu(localizedText("Scree&n")), choices, actions.moveTo);
    menu->addAction(localizedText("&Add Widgets…"), menu, actions.add);
    menu->addAction(localizedText("Re&move"), menu, actions.remove);
    menu->addSeparator();
    menu->addAction(localizedText("&Settings…"), menu, actions.settings);
    menu->addAction(localizedText("&Quit"), menu, actions.quit);
    return menu;
}

} // namespace skyvane
