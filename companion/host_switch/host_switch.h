#pragma once

#include "desk/autostart.h"

#include <QWidget>

class QCheckBox;
class QLabel;

namespace skyvane {

class HostControl;

/// The check boxes "Show widgets on my desktop", which says whether the host runs now, and "Also whenever I
/// log in", with a button beside them that opens the gallery. The first, too, is meant for the sessions to
/// come; but each shows only what is so.
class HostSwitch : public QWidget {
    Q_OBJECT
public:
    HostSwitch(HostControl& host, AutostartFolders folders, QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void choose(bool isOn);
    void keep(bool isOn);
    void addWidgets();
    void setProblem(const QString& problem);
    void showProblem(const QString& problem);
    void showWhatIsSo();
    AutostartFolders folders() const;

    HostControl& m_host;
    AutostartFolders m_folders;
    QCheckBox* m_now;
    QCheckBox* m_atLogin;
    QLabel* m_problem;
};

} // namespace skyvane
