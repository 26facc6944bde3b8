#include "companion/window/header_bar.h"

#include "companion/look/elided_label.h"
#include "companion/look/line_icon.h"
#include "companion/look/reading_direction.h"
#include "companion/look/type_scale.h"
#include "desk/text.h"

#include <QAction>
#include <QHBoxLayout>
#include <QMenu>
#include <QStyleOptionToolButton>
#include <QStylePainter>
#include <QToolButton>

namespace skyvane {

namespace {

constexpr QSize iconSize{20, 20};

/// Without the toolkit's arrow, which is the icon's to say.
class MenuButton : public QToolButton {
protected:
    void paintEvent(QPaintEvent*) override
    {
        QStyleOptionToolButton option;
        initStyleOption(&option);
        option.features.setFlag(QStyleOptionToolButton::HasMenu, false);
        QStylePainter{this}.drawComplexControl(QStyle::CC_ToolButton, option);
    }
};

void setUp(QToolButton& button)
{
    button.setAutoRaise(true);
    button.setIconSize(iconSize);
    button.setToolButtonStyle(Qt::ToolButtonIconOnly);
    button.setFocusPolicy(Qt::TabFocus);
    button.setMinimumSize(36, 36);
}

/// Only there while its action can be taken.
QToolButton* actionButton(QAction* action)
{
    auto* button = new QToolButton;
    setUp(*button);
    button->setDefaultAction(action);
    button->setVisible(action->isEnabled());
    QObject::connect(action, &QAction::enabledChanged, button, &QToolButton::setVisible);
    return button;
}

QToolButton* menuButton(const std::vector<QAction*>& actions)
{
    auto* button = new MenuButton;
    setUp(*button);
    auto* menu = new QMenu{button};
    for (QAction* action : actions)
        menu->addAction(action);
    button->setIcon(lineIcon(LineIcon::menu));
    button->setToolTip(localizedText("Menu"));
    button->setAccessibleName(localizedText("Menu"));
    button->setMenu(menu);
    button->setPopupMode(QToolButton::InstantPopup);
    return button;
}

} // namespace

HeaderBar::HeaderBar(const Actions& actions, QWidget* parent)
    : QWidget(parent), m_title(new ElidedLabel), m_details(new ElidedLabel)
{
    m_title->setFont(TypeScale::title(font()));
    TypeScale::makeQuiet(*m_details);
    auto* words = new QVBoxLayout;
    words->setSpacing(0);
    words->addWidget(m_title);
    words->addWidget(m_details);
    auto* row = new QHBoxLayout{this};
    row->setContentsMargins(inReadingDirection({20, 14, 12, 12}));
    row->setSpacing(8);
    row->addWidget(actionButton(actions.back));
    row->addLayout(words, /*stretch=*/1);
    row->addWidget(actionButton(actions.refresh));
    row->addWidget(menuButton(actions.menu));
}

void HeaderBar::showHeading(const Heading& heading)
{
    m_title->showText(heading.title);
    m_details->showText(heading.details);
    m_details->setVisible(!heading.details.isEmpty());
}

} // namespace skyvane
