#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>

#include <optional>

namespace skyvane {

class Desktop;

/// The session's running host as other processes reach it over D-Bus: desk/bus/org.skyvane.Host.xml.
class HostService : public QObject, protected QDBusContext {
    Q_OBJECT
public:
    /// Registers on the bus at once, for as long as it lives. Calls are answered in the event loop; by then
    /// there has to be a desktop.
    HostService(QDBusConnection bus, std::optional<Desktop>& desktop);
    ~HostService() override;
    HostService(const HostService&) = delete;
    HostService& operator=(const HostService&) = delete;

    // The interface's methods, called by its adaptor.
    QString Add(const QString& kind, const QString& family);
    QString Remove(int widget);
    QString Undo();
    QString Move(int widget, const QString& screen);
    QString SetLocked(bool locked);
    QString Refresh();
    QString ListPlaced() const;
    QString ListScreens() const;
    QString ShowGallery();
    QString Focus();
    QString Quit();

private:
    QString refuse(const QString& reason) const;

    QDBusConnection m_bus;
    std::optional<Desktop>& m_desktop;
};

} // namespace skyvane
