#include "host/service/host_service.h"

#include "desk/bus/names.h"
#include "host/desktop/desktop.h"
#include "host/service/host_adaptor.h"
#include "paint/to_qt.h"
#include "platform/text/printable.h"
#include "ui/layout/widget_container.h"

#include <QCoreApplication>

namespace skyvane {

HostService::HostService(QDBusConnection bus, std::optional<Desktop>& desktop)
    : m_bus(std::move(bus)), m_desktop(desktop)
{
    new HostAdaptor{this}; // Belongs to its parent.
    m_bus.registerObject(BusName::path(BusName::host()), this);
}

HostService::~HostService()
{
    m_bus.unregisterObject(BusName::path(BusName::host()));
}

QString HostService::Add(const QString& kind, const QString& family)
{
    const auto known = WidgetContainer::named(family.toStdString());
    const auto widget = known ? m_desktop->add({.kind = kind.toStdString(), .family = *known}) : std::nullopt;
    if (!widget)
        return refuse(QStringLiteral("there is no widget \"%1\" of family \"%2\"").arg(kind, family));
    if (!m_desktop->isSaved())
        return refuse(
            QStringLiteral("widget %1 is on the desktop, but cannot be remembered: its file cannot be "
                           "written, so it will be missing after the next start")
                .arg(*widget));
    return QString::number(*widget) + QStringLiteral("\n");
}

QString HostService::Remove(int widget)
{
    if (!m_desktop->remove(widget))
        return refuse(QStringLiteral("there is no placed widget %1").arg(widget));
    if (!m_desktop->isSaved())
        return refuse(
            QStringLiteral("widget %1 is off the desktop, but its file cannot be written, so it will be "
                           "back after the next start")
                .arg(widget));
    return {};
}

QString HostService::Undo()
{
    return m_desktop->undo() ? QString{} : refuse(QStringLiteral("no widget was removed just now"));
}

QString HostService::Move(int widget, const QString& screen)
{
    return m_desktop->moveTo(widget, screen.toStdString())
        ? QString{}
        : refuse(QStringLiteral("there is no placed widget %1, or no screen \"%2\"")
                     .arg(QString::number(widget), screen));
}

QString HostService::SetLocked(bool locked)
{
    m_desktop->setLocked(locked);
    return {};
}

QString HostService::Refresh()
{
    m_desktop->refreshAll();
    return {};
}

QString HostService::ListPlaced() const
{
    QString text;
    for (const PlacedWidget& widget : m_desktop->placed()) {
        text += QStringLiteral("%1\t%2\t%3\n")
                    .arg(QString::number(widget.id), toQString(Unicode::oneLine(widget.target.kind)),
                        QString::fromUtf8(WidgetContainer::name(widget.target.family)));
    }
    return text;
}

QString HostService::ListScreens() const
{
    QString text;
    for (const ScreenArea& screen : m_desktop->screens())
        text += QString::fromStdString(screen.name) + QStringLiteral("\n");
    return text;
}

QString HostService::ShowGallery()
{
    m_desktop->showGallery();
    return {};
}

QString HostService::Focus()
{
    return m_desktop->giveKeyboard() ? QString{} : refuse(QStringLiteral("there is no placed widget"));
}

QString HostService::Quit()
{
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    return {};
}

/// Answers the call with an error; what is returned goes nowhere.
QString HostService::refuse(const QString& reason) const
{
    sendErrorReply(BusName::host() + QStringLiteral(".Refused"), reason);
    return {};
}

} // namespace skyvane
