#pragma once

#include "desk/autostart.h"

#include <QWidget>

namespace skyvane {

class HostControl;

/// The switch of the widgets above the settings.
class SettingsPane : public QWidget {
    Q_OBJECT
public:
    /// `settings` becomes its child.
    SettingsPane(HostControl& host, const AutostartFolders& autostart, QWidget* settings);
};

} // namespace skyvane
