#pragma once

#include "core/model/aircraft.h"

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QStringList>

#include <optional>

namespace skyvane::test {

/// The system's location service as programs see it on the bus.
class FakeLocationService : public QDBusVirtualObject {
public:
    /// On a connection of its own, under the service's name.
    explicit FakeLocationService(const QString& busAddress);
    ~FakeLocationService() override;

    std::optional<Coordinate> fix; ///< Told at once when it is started; absent: never.
    double accuracy = 20; ///< Of the fix, metres.
    QString refusal; ///< The error that starting ends with; empty: none.
    QString silentMethod; ///< Never answered.
    QStringList calls; ///< The methods' names and the properties set, as they came.

    void leave();
    void tellFix(); ///< The one it has now.

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override;
    QString introspect(const QString& path) const override;

private:
    QDBusMessage answer(const QDBusMessage& message);

    QDBusConnection m_bus;
};

} // namespace skyvane::test
