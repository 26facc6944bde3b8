#include "companion/app/companion_service.h"

#include "companion/app/application_adaptor.h"
#include "desk/activation.h"
#include "desk/bus/names.h"

#include <utility>

namespace skyvane {

CompanionService::CompanionService(QDBusConnection bus, CompanionActions actions)
    : m_bus(std::move(bus)), m_actions(std::move(actions))
{
    new ApplicationAdaptor{this}; // Belongs to its parent.
    m_bus.registerObject(BusName::path(BusName::companion()), this);
}

CompanionService::~CompanionService()
{
    m_bus.unregisterObject(BusName::path(BusName::companion()));
}

void CompanionService::Activate(const QVariantMap& platformData) const
{
    m_actions.activate(Activation::tokenIn(platformData));
}

void CompanionService::Open(const QStringList& links, const QVariantMap& platformData) const
{
    m_actions.open(links, Activation::tokenIn(platformData));
}

void CompanionService::ActivateAction(
    const QString& action, const QVariantList&, const QVariantMap& platformData) const
{
    if (action == settingsAction())
        m_actions.showSettings(Activation::tokenIn(platformData));
    else if (action == alertsAction())
        m_actions.showAlerts(Activation::tokenIn(platformData));
    else
        sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("there is no action \"%1\"").arg(action));
}

} // namespace skyvane
