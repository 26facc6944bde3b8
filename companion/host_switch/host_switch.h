#pragma once

#include "companion/host_switch/autostart.h"

#include <QWidget>

class QCheckBox;
class QLabel;

namespace skyvane {

class HostControl;

/// The check box "Show widgets on my desktop", which starts or ends the host now and for the sessions to
/// come, with a button beside it that opens the gallery.
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
