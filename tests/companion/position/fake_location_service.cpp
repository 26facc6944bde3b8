#include "tests/companion/position/fake_location_service.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

namespace skyvane::test {

namespace {

constexpr auto name = "org.freedesktop.GeoClue2";
constexpr auto root = "/org/freedesktop/GeoClue2";
constexpr auto clientPath = "/org/freedesktop/GeoClue2/Client/1";
constexpr auto locationPath = "/org/freedesktop/GeoClue2/Client/1/Location/0";

} // namespace

FakeLocationService::FakeLocationService(const QString& busAddress)
    : m_bus(QDBusConnection::connectToBus(busAddress, "location service"))
{
    m_bus.registerVirtualObject(root, this, QDBusConnection::SubPath);
    m_bus.registerService(name);
}

FakeLocationService::~FakeLocationService()
{
    QDBusConnection::disconnectFromBus("location service");
}

void FakeLocationService::leave()
{
    m_bus.unregisterService(name);
}

QString FakeLocationService::introspect(const QString&) const
{
    return {};
}

bool FakeLocationService::handleMessage(const QDBusMessage& message, const QDBusConnection& bus)
{
    const QString member = message.member();
    calls += member == "Set" ? message.arguments().at(1).toString() + " "
            + message.arguments().at(2).value<QDBusVariant>().variant().toString()
                             : member;
    if (member == silentMethod)
        return true;
    bus.send(answer(message));
    if (member == "Start" && refusal.isEmpty() && fix)
        tellFix();
    return true;
}

QDBusMessage FakeLocationService::answer(const QDBusMessage& message)
{
    if (message.member() == "GetClient")
        return message.createReply(QVariant::fromValue(QDBusObjectPath{clientPath}));
    if (message.member() == "Start" && !refusal.isEmpty())
        return message.createErrorReply(refusal, "no");
    if (message.member() == "GetAll") {
        const QVariantMap properties{
            {"Latitude", fix->latitude}, {"Longitude", fix->longitude}, {"Accuracy", accuracy}};
        return message.createReply(properties);
    }
    return message.createReply();
}

void FakeLocationService::tellFix()
{
    QDBusMessage signal
        = QDBusMessage::createSignal(clientPath, "org.freedesktop.GeoClue2.Client", "LocationUpdated");
    signal << QVariant::fromValue(QDBusObjectPath{"/"}) << QVariant::fromValue(QDBusObjectPath{locationPath});
    m_bus.send(signal);
}

} // namespace skyvane::test
