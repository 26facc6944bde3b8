#pragma once

#include "desk/bus/host_interface.h"

#include <QDBusServiceWatcher>
#include <QObject>
#include <QTimer>

namespace skyvane {

/// Starts and ends the session's widget host, and knows whether it runs.
class HostControl : public QObject {
    Q_OBJECT
public:
    /// `program`: what is started.
    HostControl(QDBusConnection bus, QString program);

    const QString& program() const { return m_program; }
    bool isRunning() const { return m_isRunning; }

    void start();
    void stop();

    /// Shows the host's gallery, from which widgets are added; starts the host first where it does not run.
    void showGallery();

signals:
    void runningChanged(bool isRunning);
    /// In words, for the user.
    void failed(const QString& problem);

private:
    void setRunning(bool isRunning);
    void askWhetherItRuns();
    void askForGallery();

    QDBusConnection m_bus;
    QString m_program;
    HostInterface m_host;
    QDBusServiceWatcher m_watcher;
    QTimer m_patience; ///< Runs while a start or an end is awaited.
    bool m_isRunning = false;
    bool m_owesGallery = false; ///< As soon as the host runs.
};

} // namespace skyvane
