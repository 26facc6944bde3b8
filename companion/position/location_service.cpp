#include "companion/position/location_service.h"

#include "desk/bus/names.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QVariantMap>

#include <cmath>
#include <utility>

namespace skyvane {

namespace {

constexpr auto service = "org.freedesktop.GeoClue2";
constexpr auto managerPath = "/org/freedesktop/GeoClue2/Manager";
constexpr auto managerInterface = "org.freedesktop.GeoClue2.Manager";
constexpr auto clientInterface = "org.freedesktop.GeoClue2.Client";
constexpr auto locationInterface = "org.freedesktop.GeoClue2.Location";
constexpr auto propertiesInterface = "org.freedesktop.DBus.Properties";
constexpr uint exactly = 8; // The service's own scale of accuracy.

QDBusMessage method(const QString& path, const char* interface, const char* name)
{
    return QDBusMessage::createMethodCall(
        QLatin1String{service}, path, QLatin1String{interface}, QLatin1String{name});
}

QDBusMessage setting(const QString& path, const char* name, const QVariant& value)
{
    QDBusMessage message = method(path, propertiesInterface, "Set");
    message << QLatin1String{clientInterface} << QLatin1String{name}
            << QVariant::fromValue(QDBusVariant{value});
    return message;
}

LocationService::Failure failureOf(const QDBusError& error)
{
    using enum LocationService::Failure;
    switch (error.type()) {
    case QDBusError::AccessDenied:
        return denied;
    case QDBusError::ServiceUnknown:
    case QDBusError::Disconnected:
    case QDBusError::NoServer:
        return notRunning;
    case QDBusError::NoReply:
    case QDBusError::Timeout:
    case QDBusError::TimedOut:
        return noFixInTime;
    default:
        break;
    }
    // What the bus says when it cannot start the service.
    return error.name().startsWith(QLatin1String{"org.freedesktop.DBus.Error.Spawn."})
            || error.name() == QLatin1String{"org.freedesktop.DBus.Error.NameHasNoOwner"}
        ? notRunning
        : other;
}

std::optional<Coordinate> coordinateOf(const QVariantMap& properties)
{
    bool isLatitude = false;
    bool isLongitude = false;
    const double latitude = properties.value(QStringLiteral("Latitude")).toDouble(&isLatitude);
    const double longitude = properties.value(QStringLiteral("Longitude")).toDouble(&isLongitude);
    const bool isOnGlobe = std::abs(latitude) <= 90 && std::abs(longitude) <= 180;
    if (!isLatitude || !isLongitude || !isOnGlobe)
        return std::nullopt;
    return Coordinate{.latitude = latitude, .longitude = longitude};
}

} // namespace

LocationService::LocationService(const QDBusConnection& bus, std::chrono::milliseconds limit, QObject* parent)
    : QObject(parent)
    , m_bus(bus)
    , m_owner(QLatin1String{service}, m_bus, QDBusServiceWatcher::WatchForUnregistration)
{
    m_limit.setSingleShot(true);
    m_limit.setInterval(limit);
    m_limit.callOnTimeout(this, [this] { answerWith(Failure::noFixInTime); });
    connect(&m_owner, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
        m_client.clear();
        answerWith(Failure::notRunning);
    });
}

LocationService::~LocationService()
{
    end();
}

void LocationService::ask()
{
    cancel();
    m_isAsking = true;
    if (!m_bus.isConnected()) { // Calls on it would end without a word.
        QMetaObject::invokeMethod(
            this, [this] { answerWith(Failure::notRunning); }, Qt::QueuedConnection);
        return;
    }
    m_limit.start();
    call(method(managerPath, managerInterface, "GetClient"),
        [this](const QDBusMessage& answer) { introduce(answer); });
}

void LocationService::cancel()
{
    end();
}

/// Goes on with `next` unless the call fails or the question is over by then.
void LocationService::call(const QDBusMessage& message, Next next)
{
    auto* watcher = new QDBusPendingCallWatcher{m_bus.asyncCall(message), this};
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
        [this, next = std::move(next), question = m_question, watcher] {
            watcher->deleteLater();
            if (question != m_question || !m_isAsking)
                return;
            if (watcher->isError())
                answerWith(failureOf(watcher->error()));
            else
                next(watcher->reply());
        });
}

/// The service tells nobody anything who has not said which program they are.
void LocationService::introduce(const QDBusMessage& client)
{
    const QDBusPendingReply<QDBusObjectPath> reply{client};
    if (reply.isError()) {
        answerWith(Failure::other);
        return;
    }
    m_client = reply.value().path();
    m_bus.connect(QLatin1String{service}, m_client, QLatin1String{clientInterface},
        QStringLiteral("LocationUpdated"), this, SLOT(locationUpdated(QDBusObjectPath, QDBusObjectPath)));
    call(setting(m_client, "DesktopId", BusName::companion()), [this](const QDBusMessage&) {
        call(setting(m_client, "RequestedAccuracyLevel", exactly), [this](const QDBusMessage&) { start(); });
    });
}

void LocationService::start()
{
    call(method(m_client, clientInterface, "Start"), [](const QDBusMessage&) {});
}

void LocationService::locationUpdated(const QDBusObjectPath&, const QDBusObjectPath& current)
{
    if (!m_isAsking)
        return;
    QDBusMessage message = method(current.path(), propertiesInterface, "GetAll");
    message << QLatin1String{locationInterface};
    call(message, [this](const QDBusMessage& answer) { readLocation(answer); });
}

void LocationService::readLocation(const QDBusMessage& properties)
{
    const QDBusPendingReply<QVariantMap> reply{properties};
    const auto coordinate = reply.isError() ? std::nullopt : coordinateOf(reply.value());
    if (!coordinate) {
        answerWith(Failure::other);
        return;
    }
    end();
    emit located(*coordinate);
}

void LocationService::answerWith(Failure failure)
{
    if (!m_isAsking)
        return;
    end();
    emit failed(failure);
}

void LocationService::end()
{
    ++m_question;
    m_isAsking = false;
    m_limit.stop();
    if (m_client.isEmpty())
        return;
    m_bus.disconnect(QLatin1String{service}, m_client, QLatin1String{clientInterface},
        QStringLiteral("LocationUpdated"), this, SLOT(locationUpdated(QDBusObjectPath, QDBusObjectPath)));
    m_bus.send(method(m_client, clientInterface, "Stop"));
    m_client.clear();
}

} // namespace skyvane
