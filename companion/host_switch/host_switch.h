#pragma once

#include "companion/host_switch/autostart.h"

#include <QWidget>

class QCheckBox;
class QLabel;

namespace skyvane {

class HostControl;

/// "Show widgets on my desktop": on while they are there, now and with every session. Beside it the way to
/// more of them.
class HostSwitch : public QWidget {
    Q_OBJECT
public:
    HostSwitch(HostControl& host, AutostartFolders folders, QWidget* parent = nullptr);

private:
    void choose(bool isOn);
    void keep(bool isOn);
    void addWidgets();
    void showProblem(const QString& problem);

    HostControl& m_host;
    AutostartFolders m_folders;
    QCheckBox* m_box;
    QLabel* m_words;
};

} // namespace skyvane
