#include "companion/app/hand_over.h"

#include "companion/app/companion_service.h"
#include "desk/activation.h"

#include <QDBusMessage>

namespace skyvane {

namespace {

QDBusMessage call(const QString& method)
{
    return QDBusMessage::createMethodCall(CompanionService::name(), CompanionService::path(),
        QStringLiteral("org.freedesktop.Application"), method);
}

QDBusMessage requestFor(const CommandLine& line, const QVariantMap& platformData)
{
    if (line.showsSettings)
        return call(QStringLiteral("ActivateAction"))
            << QStringLiteral("settings") << QVariantList{} << platformData;
    if (line.link)
        return call(QStringLiteral("Open"))
            << QStringList{QString::fromStdString(*line.link)} << platformData;
    return call(QStringLiteral("Activate")) << platformData;
}

} // namespace

bool handOver(const QDBusConnection& bus, const CommandLine& line, const QString& token)
{
    constexpr int patience = 10'000; // Milliseconds.
    if (line.isService)
        return true;
    const QDBusMessage request = requestFor(line, Activation::platformData(token));
    return bus.call(request, QDBus::Block, patience).type() == QDBusMessage::ReplyMessage;
}

} // namespace skyvane
