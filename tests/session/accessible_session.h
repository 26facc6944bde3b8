#pragma once

#include "tests/session/x_session.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QRect>

#include <string>
#include <vector>

namespace skyvane::test {

/// Something that a screen reader knows, asked over the accessibility bus.
class AccessibleObject {
public:
    AccessibleObject(QDBusConnection bus, QString service, QString path)
        : m_bus(std::move(bus)), m_service(std::move(service)), m_path(std::move(path))
    {
    }

    std::string name() const;
    std::string role() const;
    QRect frame() const; ///< On the screen.
    std::vector<AccessibleObject> children() const;
    std::vector<std::string> actions() const;
    void doAction(int index) const;

private:
    QDBusMessage call(const QString& interface, const QString& method, const QVariantList& words = {}) const;

    QDBusConnection m_bus;
    QString m_service;
    QString m_path;
};

/// The accessibility bus of an X session, whose programs then tell all they show. To be made before them.
class AccessibleSession {
public:
    explicit AccessibleSession(XSession& session);
    ~AccessibleSession();
    AccessibleSession(const AccessibleSession&) = delete;
    AccessibleSession& operator=(const AccessibleSession&) = delete;

    std::vector<AccessibleObject> programs() const;
};

} // namespace skyvane::test
