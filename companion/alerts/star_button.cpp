#include "companion/alerts/star_button.h"

#include "companion/look/line_icon.h"
#include "desk/text.h"

namespace skyvane {

StarButton::StarButton(QWidget* parent) : QToolButton(parent)
{
    constexpr QSize iconSize{20, 20};
    setCheckable(true);
    setAutoRaise(true);
    setIconSize(iconSize);
    setMinimumSize(36, 36);
    setFocusPolicy(Qt::TabFocus);
    setShortcut(Qt::CTRL | Qt::Key_D);
    setAccessibleName(localizedText("On my watch list"));
    setOn(false);
}

void StarButton::setOn(bool isOn)
{
    setChecked(isOn);
    setIcon(lineIcon(isOn ? LineIcon::starOn : LineIcon::star));
    setToolTip(isOn ? localizedText("Take it off my watch list") : localizedText("Put it on my watch list"));
}

} // namespace skyvane
