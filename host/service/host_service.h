#pragma once

#include <QDBusConnection>
#include <QDBusVirtualObject>

namespace skyvane {

class Desktop;

/// The session's running host as other processes reach it over D-Bus: the interface org.skyvane.Host of the
/// name org.skyvane.Host. Every method answers one text, to be printed; empty for those without a result.
///
///     Add(s kind, s family)   a widget more; its number
///     Remove(i widget)
///     Refresh()               all of them
///     ListPlaced()            number, kind and family, one widget a line
///     ShowGallery()           of widgets to add; as a second start of the program does
///     Quit()
class HostService : public QDBusVirtualObject {
public:
    static QString name();
    static QString path();

    /// Takes calls from now on for as long as it lives; they wait in the event loop.
    explicit HostService(QDBusConnection bus);
    ~HostService() override;
    HostService(const HostService&) = delete;
    HostService& operator=(const HostService&) = delete;

    /// What calls are about. To be told before the event loop runs.
    void serve(Desktop& desktop) { m_desktop = &desktop; }

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    QDBusMessage add(const QDBusMessage& message);
    QDBusMessage remove(const QDBusMessage& message);
    QString placed() const;

    QDBusConnection m_bus;
    Desktop* m_desktop = nullptr;
};

} // namespace skyvane
