#pragma once

#include "core/model/aircraft.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <optional>

namespace skyvane {

/// Where the system's location service takes somebody to be.
struct LocationFix {
    Coordinate position;
    std::optional<double> accuracy{}; ///< Metres; absent where the service does not say.

    bool operator==(const LocationFix&) const = default;
};

/// The system's location service, asked for one position at a time; its answer is a signal. A first fix may
/// be of the whole region: a good one is waited for.
class LocationService : public QObject {
    Q_OBJECT
public:
    enum class Failure {
        notRunning, ///< No service answers, or it went while it was asked.
        denied,
        noFixInTime,
        other, ///< It answered with an error or with no position.
    };

    struct Patience {
        std::chrono::milliseconds good{
            std::chrono::seconds{10}}; ///< For a good fix; then the best so far does.
        std::chrono::milliseconds any{std::chrono::seconds{30}}; ///< For one at all.
    };

    explicit LocationService(const QDBusConnection& bus, QObject* parent = nullptr)
        : LocationService(bus, Patience{}, parent)
    {
    }
    LocationService(const QDBusConnection& bus, const Patience& patience, QObject* parent = nullptr);
    ~LocationService() override;

    /// Replaces a question under way.
    void ask();

    /// Ends a question under way without an answer.
    void cancel();

    bool isAsking() const { return m_isAsking; }

signals:
    void located(const skyvane::LocationFix& fix);
    void improving(const skyvane::LocationFix& best); ///< It is waited for a better one.
    void failed(skyvane::LocationService::Failure failure);

private slots:
    void locationUpdated(const QDBusObjectPath& old, const QDBusObjectPath& current);

private:
    using Next = std::function<void(const QDBusMessage& answer)>;

    void call(const QDBusMessage& message, Next next);
    void introduce(const QDBusMessage& client);
    void start();
    void readLocation(const QDBusMessage& properties);
    void weigh(const LocationFix& fix);
    void settle();
    void answerWith(Failure failure);
    void end();

    QDBusConnection m_bus;
    QDBusServiceWatcher m_owner;
    QTimer m_wish; ///< Until then only a good fix does.
    QTimer m_limit;
    std::optional<LocationFix> m_best; ///< Of this question.
    bool m_isAsking = false;
    unsigned m_question = 0; ///< Number of the last question; answers to earlier ones are dropped.
    QString m_client; ///< Object path of this program's client in the service; empty while there is none.
};

} // namespace skyvane
