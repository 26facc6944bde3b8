#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QPalette>

namespace skyvane {

/// Follows the desktop's choice of dark or light, and of a higher contrast, now and whenever it changes. What
/// a platform theme has set already stays until then.
class Appearance : public QObject {
    Q_OBJECT
public:
    explicit Appearance(QDBusConnection bus);

    static QPalette darkPalette();
    static QPalette lightPalette();

private slots:
    void settingChanged(const QDBusMessage& signal);

private:
    void ask(QDBusConnection bus, const QString& key);
    void follow(const QString& key, const QVariant& value);
    void showChosen(bool isChange);

    QPalette m_own; ///< The program's before anything was changed.
    bool m_wantsDark = false;
    bool m_wantsContrast = false;
};

} // namespace skyvane
