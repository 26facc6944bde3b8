#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QVariantMap>

#include <functional>

namespace skyvane {

/// What others may ask of the running companion. `token` is the activation token of the user's click, empty
/// when there was none.
struct CompanionActions {
    std::function<void(const QString& token)> activate;
    std::function<void(const QStringList& links, const QString& token)> open; ///< As they came, not checked.
    std::function<void(const QString& token)> showSettings;
    std::function<void(const QString& token)> showAlerts;
};

/// The session's companion as the desktop and a second start reach it:
/// desk/bus/org.freedesktop.Application.xml.
class CompanionService : public QObject, protected QDBusContext {
    Q_OBJECT
public:
    /// The actions for `ActivateAction`.
    static QString settingsAction() { return QStringLiteral("settings"); }
    static QString alertsAction() { return QStringLiteral("alerts"); }

    CompanionService(QDBusConnection bus, CompanionActions actions);
    ~CompanionService() override;
    CompanionService(const CompanionService&) = delete;
    CompanionService& operator=(const CompanionService&) = delete;

    // The interface's methods, called by its adaptor.
    void Activate(const QVariantMap& platformData) const;
    void Open(const QStringList& links, const QVariantMap& platformData) const;
    void ActivateAction(
        const QString& action, const QVariantList& parameter, const QVariantMap& platformData) const;

private:
    QDBusConnection m_bus;
    CompanionActions m_actions;
};

} // namespace skyvane
