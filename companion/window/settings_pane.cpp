#include "companion/window/settings_pane.h"

#include "companion/host_switch/host_switch.h"

#include <QFrame>
#include <QVBoxLayout>

namespace skyvane {

namespace {

QFrame* line()
{
    auto* line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Plain);
    line->setForegroundRole(QPalette::Mid);
    return line;
}

} // namespace

SettingsPane::SettingsPane(HostControl& host, const AutostartFolders& autostart, QWidget* settings)
{
    auto* hostSwitch = new HostSwitch{host, autostart};
    hostSwitch->setContentsMargins(20, 8, 20, 12);
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(hostSwitch);
    column->addWidget(line());
    column->addWidget(settings, /*stretch=*/1);
}

} // namespace skyvane
