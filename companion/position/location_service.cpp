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

std::optional<LocationFix> fixOf(const QVariantMap& properties)
{
    bool isLatitude = false;
    bool isLongitude = false;
    bool isAccuracy = false;
    const double latitude = properties.value(QStringLiteral("Latitude")).toDouble(&isLatitude);
    const double longitude = properties.value(QStringLiteral("Longitude")).toDouble(&isLongitude);
    const double accuracy = properties.value(QStringLiteral("Accuracy")).toDouble(&isAccuracy);
    const bool isOnGlobe = std::abs(latitude) <= 90 && std::abs(longitude) <= 180;
    if (!isLatitude || !isLongitude || !isOnGlobe)
        return std::nullopt;
    const bool isSaid = isAccuracy && accuracy > 0 && std::isfinite(accuracy);
    return LocationFix{.position = {.latitude = latitude, .longitude = longitude},
        .accuracy = isSaid ? std::optional{accuracy} : std::nullopt};
}

/// Good enough to say what flies overhead.
bool isGood(const LocationFix& fix)
{
    constexpr double goodAccuracy = 1000; // Metres.
    return fix.accuracy && *fix.accuracy <= goodAccuracy;
}

bool isBetter(const LocationFix& fix, const LocationFix& other)
{
    return fix.accuracy && (!other.accuracy || *fix.accuracy <= *other.accuracy);
}

} // namespace

LocationService::LocationService(const QDBusConnection& bus, const Patience& patience, QObject* parent)
    : QObject(parent)
    , m_bus(bus)
    , m_owner(QLatin1String{service}, m_bus, QDBusServiceWatcher::WatchForUnregistration)
{
    m_limit.setSingleShot(true);
    m_limit.setInterval(patience.any);
    m_limit.callOnTimeout(this, [this] { answerWith(Failure::noFixInTime); });
    m_wish.setSingleShot(true);
    m_wish.setInterval(patience.good);
    m_wish.callOnTimeout(this, [this] { settle(); });
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
    m_wish.start();
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
    const auto fix = reply.isError() ? std::nullopt : fixOf(reply.value());
    if (fix)
        weigh(*fix);
    else if (!m_best)
        answerWith(Failure::other);
}

void LocationService::weigh(const LocationFix& fix)
{
    if (!m_best || isBetter(fix, *m_best))
        m_best = fix;
    if (isGood(*m_best) || !m_wish.isActive())
        settle();
    else
        emit improving(*m_best);
}

/// With the best there is, once there is one.
void LocationService::settle()
{
    const auto best = m_best;
    if (!best)
        return;
    end();
    emit located(*best);
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
    m_wish.stop();
    m_best.reset();
    if (m_client.isEmpty())
        return;
    m_bus.disconnect(QLatin1String{service}, m_client, QLatin1String{clientInterface},
        QStringLiteral("LocationUpdated"), this, SLOT(locationUpdated(QDBusObjectPath, QDBusObjectPath)));
    m_bus.send(method(m_client, clientInterface, "Stop"));
    m_client.clear();
}

} // namespace skyvane
