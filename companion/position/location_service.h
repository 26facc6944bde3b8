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

/// The system's location service, asked for one position at a time; its answer is a signal.
class LocationService : public QObject {
    Q_OBJECT
public:
    enum class Failure {
        notRunning, ///< No service answers, or it went while it was asked.
        denied,
        noFixInTime,
        other, ///< It answered with an error or with no position.
    };

    /// `limit`: time-out of one question.
    explicit LocationService(const QDBusConnection& bus,
        std::chrono::milliseconds limit = std::chrono::seconds{30}, QObject* parent = nullptr);
    ~LocationService() override;

    /// Replaces a question under way.
    void ask();

    /// Ends a question under way without an answer.
    void cancel();

    bool isAsking() const { return m_isAsking; }

signals:
    void located(const skyvane::Coordinate& coordinate);
    void failed(skyvane::LocationService::Failure failure);

private slots:
    void locationUpdated(const QDBusObjectPath& old, const QDBusObjectPath& current);

private:
    using Next = std::function<void(const QDBusMessage& answer)>;

    void call(const QDBusMessage& message, Next next);
    void introduce(const QDBusMessage& client);
    void start();
    void readLocation(const QDBusMessage& properties);
    void answerWith(Failure failure);
    void end();

    QDBusConnection m_bus;
    QDBusServiceWatcher m_owner;
    QTimer m_limit;
    bool m_isAsking = false;
    unsigned m_question = 0; ///< Number of the last question; answers to earlier ones are dropped.
    QString m_client; ///< Object path of this program's client in the service; empty while there is none.
};

} // namespace skyvane
