#include "companion/host_switch/host_switch.h"

#include "companion/host_switch/host_control.h"
#include "companion/look/type_scale.h"
#include "desk/text.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace skyvane {

HostSwitch::HostSwitch(HostControl& host, AutostartFolders folders, QWidget* parent)
    : QWidget(parent)
    , m_host(host)
    , m_folders(std::move(folders))
    , m_now(new QCheckBox{localizedText("Show &widgets on my desktop")})
    , m_atLogin(new QCheckBox{localizedText("Also whenever I log &in")})
    , m_problem(new QLabel)
{
    m_now->setFont(TypeScale::strong(font()));
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setWordWrap(true);
    TypeScale::makeQuiet(*m_problem);
    auto* add = new QPushButton{localizedText("&Add Widgets…")};
    auto* column = new QVBoxLayout;
    column->setSpacing(2);
    column->addWidget(m_now);
    column->addWidget(m_atLogin);
    column->addWidget(m_problem);
    auto* row = new QHBoxLayout{this};
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(20);
    row->addLayout(column, /*stretch=*/1);
    row->addWidget(add);
    setProblem({});
    showWhatIsSo();
    connect(&m_host, &HostControl::runningChanged, m_now, &QCheckBox::setChecked);
    connect(&m_host, &HostControl::failed, this, &HostSwitch::showProblem);
    connect(m_now, &QCheckBox::clicked, this, &HostSwitch::choose);
    connect(m_atLogin, &QCheckBox::clicked, this, [this](bool isOn) {
        setProblem({});
        keep(isOn);
    });
    connect(add, &QPushButton::clicked, this, &HostSwitch::addWidgets);
}

/// Others may have changed what starts at log-in.
void HostSwitch::showEvent(QShowEvent* event)
{
    showWhatIsSo();
    QWidget::showEvent(event);
}

void HostSwitch::choose(bool isOn)
{
    setProblem({});
    if (isOn)
        m_host.start();
    else
        m_host.stop();
    keep(isOn);
}

/// Whoever adds widgets wants to see them, as with the switch.
void HostSwitch::addWidgets()
{
    setProblem({});
    const bool isToBeTurnedOn = !m_host.isRunning();
    m_host.showGallery();
    if (isToBeTurnedOn)
        keep(true);
}

/// For the sessions to come.
void HostSwitch::keep(bool isOn)
{
    const bool hasTaken
        = isOn ? Autostart::turnOn(folders(), m_host.program().toStdString()) : Autostart::turnOff(folders());
    m_atLogin->setChecked(Autostart::isOn(folders()));
    if (!hasTaken)
        showProblem(
            localizedText("What starts when you log in cannot be changed: %1", {m_folders.own.string()}));
}

void HostSwitch::setProblem(const QString& problem)
{
    m_problem->setText(problem);
    m_problem->setVisible(!problem.isEmpty());
    m_now->setAccessibleDescription(problem);
}

void HostSwitch::showProblem(const QString& problem)
{
    setProblem(problem);
    showWhatIsSo();
}

void HostSwitch::showWhatIsSo()
{
    m_now->setChecked(m_host.isRunning());
    m_atLogin->setChecked(Autostart::isOn(folders()));
}

/// A shell comes and goes with the extension that makes it one.
AutostartFolders HostSwitch::folders() const
{
    AutostartFolders folders = m_folders;
    folders.isShellThere = m_host.isShellThere();
    return folders;
}

} // namespace skyvane
