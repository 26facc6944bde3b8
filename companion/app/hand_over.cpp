#include "companion/app/hand_over.h"

#include "companion/app/companion_service.h"
#include "desk/activation.h"
#include "desk/bus/application_interface.h"
#include "desk/bus/single_instance.h"

namespace skyvane {

namespace {

QDBusPendingReply<> ask(
    ApplicationInterface& companion, const CommandLine& line, const QVariantMap& platformData)
{
    if (line.showsSettings)
        return companion.ActivateAction(CompanionService::settingsAction(), {}, platformData);
    if (line.showsAlerts)
        return companion.ActivateAction(CompanionService::alertsAction(), {}, platformData);
    if (line.link)
        return companion.Open({QString::fromStdString(*line.link)}, platformData);
    return companion.Activate(platformData);
}

} // namespace

bool handOver(const QDBusConnection& bus, const CommandLine& line, const QString& token)
{
    if (line.isService)
        return true;
    const auto call = [&](ApplicationInterface& companion) {
        return ask(companion, line, Activation::platformData(token));
    };
    return !SingleInstance::askOwner<ApplicationInterface>(bus, BusName::companion(), call).isError();
}

} // namespace skyvane
