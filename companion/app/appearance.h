#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QPalette>

namespace skyvane {

/// Follows the desktop's choice of dark or light, now and whenever it changes. What a platform theme has set
/// already stays.
class Appearance : public QObject {
    Q_OBJECT
public:
    explicit Appearance(QDBusConnection bus);

    static QPalette darkPalette();

private slots:
    void settingChanged(const QDBusMessage& signal);

private:
    void follow(const QVariant& scheme);

    QPalette m_light; ///< The program's own before anything was changed.
};

} // namespace skyvane
