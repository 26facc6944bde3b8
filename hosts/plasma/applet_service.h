#pragma once

#include <QDBusConnection>
#include <QDBusVirtualObject>

#include <functional>

namespace skyvane {

/// The applets on the message bus: as a shell that shows the widgets, in whose place no host starts, and,
/// while they are shown, as the host, which the companion's switch and the commands of skyvane-host reach. A
/// host that runs already ends.
class AppletService : public QDBusVirtualObject {
public:
    struct Actions {
        std::function<void()> start;
        std::function<void()> quit;
        std::function<void()> refresh;
    };

    AppletService(QDBusConnection bus, Actions actions);
    ~AppletService() override;
    AppletService(const AppletService&) = delete;
    AppletService& operator=(const AppletService&) = delete;

    void setShown(bool areShown);

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    bool isDone(const QString& method);

    QDBusConnection m_bus;
    Actions m_actions;
};

} // namespace skyvane
