#pragma once

#include <QDBusConnection>
#include <QObject>

#include <functional>

namespace skyvane {

/// Tells when the machine has woken from sleep, as the login manager announces it on this bus.
class SleepWatch : public QObject {
    Q_OBJECT
public:
    SleepWatch(QDBusConnection bus, std::function<void()> woken);

private slots:
    void prepareForSleep(bool isGoingToSleep);

private:
    std::function<void()> m_woken;
};

} // namespace skyvane
