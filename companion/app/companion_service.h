#pragma once

#include <QDBusConnection>
#include <QDBusVirtualObject>

#include <functional>

namespace skyvane {

/// What others may ask of the running companion. Each comes with the activation token of the click that it
/// goes back to; empty: none.
struct CompanionActions {
    std::function<void(const QString& token)> activate;
    std::function<void(const QStringList& links, const QString& token)> open; ///< Not looked at.
    std::function<void(const QString& token)> showSettings;
};

/// The session's companion as the desktop and a second start reach it: org.freedesktop.Application.
class CompanionService : public QDBusVirtualObject {
public:
    static QString name();
    static QString path();

    CompanionService(QDBusConnection bus, CompanionActions actions);
    ~CompanionService() override;
    CompanionService(const CompanionService&) = delete;
    CompanionService& operator=(const CompanionService&) = delete;

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    QDBusConnection m_bus;
    CompanionActions m_actions;
};

} // namespace skyvane
