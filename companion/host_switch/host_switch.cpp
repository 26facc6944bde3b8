#include "companion/host_switch/host_switch.h"

#include "companion/host_switch/host_control.h"
#include "companion/look/type_scale.h"
#include "desk/text.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace skyvane {

namespace {

QString explanation()
{
    return localizedText("Now, and whenever you log in.");
}

} // namespace

HostSwitch::HostSwitch(HostControl& host, AutostartFolders folders, QWidget* parent)
    : QWidget(parent)
    , m_host(host)
    , m_folders(std::move(folders))
    , m_box(new QCheckBox{localizedText("Show &widgets on my desktop")})
    , m_words(new QLabel{explanation()})
{
    m_box->setFont(TypeScale::strong(font()));
    m_words->setTextFormat(Qt::PlainText);
    m_words->setWordWrap(true);
    TypeScale::makeQuiet(*m_words);
    auto* add = new QPushButton{localizedText("&Add Widgets…")};
    auto* column = new QVBoxLayout;
    column->setSpacing(2);
    column->addWidget(m_box);
    column->addWidget(m_words);
    auto* row = new QHBoxLayout{this};
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(20);
    row->addLayout(column, /*stretch=*/1);
    row->addWidget(add);
    m_box->setChecked(m_host.isRunning());
    connect(&m_host, &HostControl::runningChanged, m_box, &QCheckBox::setChecked);
    connect(&m_host, &HostControl::failed, this, &HostSwitch::showProblem);
    connect(m_box, &QCheckBox::clicked, this, &HostSwitch::choose);
    connect(add, &QPushButton::clicked, this, &HostSwitch::addWidgets);
}

void HostSwitch::choose(bool isOn)
{
    m_words->setText(explanation());
    if (isOn)
        m_host.start();
    else
        m_host.stop();
    keep(isOn);
}

/// Whoever adds widgets wants to see them, as with the switch.
void HostSwitch::addWidgets()
{
    m_words->setText(explanation());
    const bool isToBeTurnedOn = !m_host.isRunning();
    m_host.showGallery();
    if (isToBeTurnedOn)
        keep(true);
}

/// For the sessions to come.
void HostSwitch::keep(bool isOn)
{
    const bool hasTaken
        = isOn ? Autostart::turnOn(m_folders, m_host.program().toStdString()) : Autostart::turnOff(m_folders);
    if (!hasTaken)
        showProblem(
            localizedText("What starts when you log in cannot be changed: %1", {m_folders.own.string()}));
}

void HostSwitch::showProblem(const QString& problem)
{
    m_words->setText(problem);
    m_box->setAccessibleDescription(problem);
    m_box->setChecked(m_host.isRunning());
}

} // namespace skyvane
